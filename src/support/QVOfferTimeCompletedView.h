// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// Told when the user answers the completion-time question; button is yes or no.
class QUORVAMEDIA_EXPORT QVOfferTimeCompletedViewDelegate
{
public:
    /// The delegate is not owned by the view.
    virtual ~QVOfferTimeCompletedViewDelegate() = default;
    /// The user answered with this button.
    virtual void onChoiceChange(QQuickItem *button) = 0;
};

/// The yes/no question on when the offer was completed, one checkmark at most.
class QUORVAMEDIA_EXPORT QVOfferTimeCompletedView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferTimeCompletedViewBase)
    /// Outlet: the yes button, set by the interface file.
    Q_PROPERTY(QQuickItem *yesButton MEMBER m_yesButton NOTIFY outletsChanged FINAL)
    /// Outlet: the no button, set by the interface file.
    Q_PROPERTY(QQuickItem *noButton MEMBER m_noButton NOTIFY outletsChanged FINAL)
    /// Outlet: the yes checkmark, set by the interface file.
    Q_PROPERTY(QQuickItem *yesCheckmark MEMBER m_yesCheckmark NOTIFY outletsChanged FINAL)
    /// Outlet: the no checkmark, set by the interface file.
    Q_PROPERTY(QQuickItem *noCheckmark MEMBER m_noCheckmark NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVOfferTimeCompletedView".
    static QString identifier() { return QStringLiteral("QVOfferTimeCompletedView"); }

    ///@{
    /// The listener told of the answer: the form. Not owned.
    QVOfferTimeCompletedViewDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVOfferTimeCompletedViewDelegate *delegate) { m_delegate = delegate; }
    ///@}
    /// See #yesButton.
    QQuickItem *yesButton() const { return m_yesButton; }
    /// See #noButton.
    QQuickItem *noButton() const { return m_noButton; }

    /// A tap on yes or no: checks it and tells the delegate.
    Q_INVOKABLE void onSelectionChange(QQuickItem *button);
    /// Unchecks both answers.
    void clearSelection();

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QVOfferTimeCompletedViewDelegate *m_delegate = nullptr;
    QQuickItem *m_yesButton = nullptr;
    QQuickItem *m_noButton = nullptr;
    QQuickItem *m_yesCheckmark = nullptr;
    QQuickItem *m_noCheckmark = nullptr;
};
