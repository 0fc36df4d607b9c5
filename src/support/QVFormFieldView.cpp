// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFormFieldView.h"
#include "QVNotificationCenter.h"

void QVFormFieldView::notValid(QQuickItem *field)
{
    applyLook(field, true);
    setIsUIRestored(false);
}

void QVFormFieldView::restoreUI(QQuickItem *field)
{
    QVNotificationCenter::defaultCenter()->post(QVNotificationCenter::kHideErrorMessageNotification, this);
    applyLook(field, false);
    setIsUIRestored(true);
}

bool QVFormFieldView::fieldWillChange(QQuickItem *field)
{
    if (!m_isUIRestored)
        restoreUI(field);
    return true;
}

void QVFormFieldView::clearField(QQuickItem *field)
{
    if (field && fieldWillChange(field))
        field->setProperty("text", QString());
}

void QVFormFieldView::setIsUIRestored(bool restored)
{
    if (m_isUIRestored == restored)
        return;
    m_isUIRestored = restored;
    emit isUIRestoredChanged();
}
