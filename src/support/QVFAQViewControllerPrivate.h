// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVFAQViewController.h"

// The data of QVFAQViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVFAQViewControllerPrivate
{
public:
    QQuickItem *m_collectionView = nullptr;
    QVFaqListModel *m_model = nullptr;
    int m_selectedIndexPath = -1;
    int m_keyboardRow = -1;
};
