// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

/// Holds the form's send button; the form attaches its own action to it.
class QUORVAMEDIA_EXPORT QVSupportSendButtonView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVSupportSendButtonViewBase)
    /// Outlet: the send button, set by the interface file.
    Q_PROPERTY(QQuickItem *sendBtn MEMBER m_sendBtn NOTIFY outletsChanged FINAL)
    /// The button's corner radius, in points.
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)
    /// The button's border width, in points.
    Q_PROPERTY(qreal borderWidth READ borderWidth CONSTANT FINAL)
    /// The button's border colour.
    Q_PROPERTY(QColor borderColor READ borderColor CONSTANT FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVSupportSendButtonView".
    static QString identifier() { return QStringLiteral("QVSupportSendButtonView"); }
    ///@{
    /// See the properties of the same names.
    static qreal cornerRadius() { return 6; }
    static qreal borderWidth() { return 1; }
    static QColor borderColor() { return QColor(Qt::transparent); }
    ///@}

    /// See #sendBtn.
    QQuickItem *sendBtn() const { return m_sendBtn; }

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QQuickItem *m_sendBtn = nullptr;
};
