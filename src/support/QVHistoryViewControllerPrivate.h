// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVHistoryViewController.h"

// The data of QVHistoryViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVHistoryViewControllerPrivate
{
public:
    QQuickItem *m_collectionView = nullptr;
    QQuickItem *m_noOffersCompleted = nullptr;
    std::unique_ptr<QVPayoutFormatter> m_numberFormatter;
    QVTransactionsListModel *m_transactions = nullptr;
    bool m_isLoading = false;
};
