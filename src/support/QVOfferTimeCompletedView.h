#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// Told when the user answers the completion-time question; button is yes or no.
class QUORVAMEDIA_EXPORT QVOfferTimeCompletedViewDelegate
{
public:
    virtual ~QVOfferTimeCompletedViewDelegate() = default;
    virtual void onChoiceChange(QQuickItem *button) = 0;
};

// The yes/no question on when the offer was completed, one checkmark at most.
class QUORVAMEDIA_EXPORT QVOfferTimeCompletedView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferTimeCompletedViewBase)
    Q_PROPERTY(QQuickItem *yesButton MEMBER m_yesButton NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *noButton MEMBER m_noButton NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *yesCheckmark MEMBER m_yesCheckmark NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *noCheckmark MEMBER m_noCheckmark NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVOfferTimeCompletedView"); }

    QVOfferTimeCompletedViewDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVOfferTimeCompletedViewDelegate *delegate) { m_delegate = delegate; }
    QQuickItem *yesButton() const { return m_yesButton; }
    QQuickItem *noButton() const { return m_noButton; }

    Q_INVOKABLE void onSelectionChange(QQuickItem *button);
    void clearSelection();

signals:
    void outletsChanged();

private:
    QVOfferTimeCompletedViewDelegate *m_delegate = nullptr;
    QQuickItem *m_yesButton = nullptr;
    QQuickItem *m_noButton = nullptr;
    QQuickItem *m_yesCheckmark = nullptr;
    QQuickItem *m_noCheckmark = nullptr;
};
