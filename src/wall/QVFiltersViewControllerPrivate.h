// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVFiltersViewController.h"

// The data of QVFiltersViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVFiltersViewControllerPrivate
{
public:
    QVFiltersViewControllerDelegate *m_delegate = nullptr;
    std::optional<QVCategory> m_categoryParam;
    std::optional<QVSort> m_sortParam;
    QList<QVSort> m_sortOptions;
    int m_sortKeyIndex = 0;
    int m_categoryKeyIndex = 0;
    qreal m_topMargin = 0;
    QQuickItem *m_collectionView = nullptr;
    QQuickItem *m_saveButton = nullptr;
    QVFilterListModel *m_model = nullptr;
};
