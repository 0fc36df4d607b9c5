#pragma once

#include "quorvamedia_global.h"

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

// Holds the form's send button; the form attaches its own action to it.
class QUORVAMEDIA_EXPORT QVSupportSendButtonView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVSupportSendButtonViewBase)
    Q_PROPERTY(QQuickItem *sendBtn MEMBER m_sendBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)
    Q_PROPERTY(qreal borderWidth READ borderWidth CONSTANT FINAL)
    Q_PROPERTY(QColor borderColor READ borderColor CONSTANT FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVSupportSendButtonView"); }
    static qreal cornerRadius() { return 6; }
    static qreal borderWidth() { return 1; }
    static QColor borderColor() { return QColor(Qt::transparent); }

    QQuickItem *sendBtn() const { return m_sendBtn; }

signals:
    void outletsChanged();

private:
    QQuickItem *m_sendBtn = nullptr;
};
