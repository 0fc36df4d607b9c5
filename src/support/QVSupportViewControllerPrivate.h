// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVSupportViewController.h"

// The data of QVSupportViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVSupportViewControllerPrivate
{
public:
    QQuickItem *m_segmentedControl = nullptr;
    QQuickItem *m_errorLabel = nullptr;
    QVFAQViewController *m_faqVC = nullptr;
    QVHistoryViewController *m_historyVC = nullptr;
    QVEmailViewController *m_emailVC = nullptr;
    QColor m_backgroundColor = Qt::white;
    int m_shownSegment = QVSupportViewController::FaqTab;
};
