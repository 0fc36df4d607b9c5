// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// What the input views of the ticket form share: a field gets its error look from the
/// form (notValid) and goes back to its normal look by itself on the first edit after
/// that, telling whoever shows the error message to hide it. One flag per view, not per
/// field: after one field is restored, editing another field restores nothing until the
/// next notValid. The flag starts false, so the very first edit also restores.
class QUORVAMEDIA_EXPORT QVFormFieldView : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// False after notValid() until the next edit restores the normal look.
    Q_PROPERTY(bool isUIRestored READ isUIRestored NOTIFY isUIRestoredChanged FINAL)

public:
    using QQuickItem::QQuickItem;

    /// See #isUIRestored.
    bool isUIRestored() const { return m_isUIRestored; }

    /// Gives field its error look; a field that is not one of this view's changes nothing.
    Q_INVOKABLE void notValid(QQuickItem *field);
    /// Posts "HideErrorMessageNotification" (for any field), then gives field its normal look.
    Q_INVOKABLE void restoreUI(QQuickItem *field);
    /// The edit hook of every input (typing, pasting, clearing): answers whether the edit
    /// may happen, restoring the look first if needed. Single-line fields take any edit.
    Q_INVOKABLE bool fieldWillChange(QQuickItem *field);
    /// The clear button of a single-line field: an edit like any other.
    Q_INVOKABLE void clearField(QQuickItem *field);

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void isUIRestoredChanged();

protected:
    /// Sets the look of field; false when field is none of this view's inputs.
    virtual bool applyLook(QQuickItem *field, bool error) = 0;
    /// Sets #isUIRestored.
    void setIsUIRestored(bool restored);

private:
    bool m_isUIRestored = false;
};
