#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// A collapsed FAQ row: the question only, always the same height.
class QUORVAMEDIA_EXPORT QVQuestionCollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVQuestionCollectionViewCellBase)
    Q_PROPERTY(QQuickItem *questionLabel MEMBER m_questionLabel NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVQuestionCollectionViewCell"); }

signals:
    void outletsChanged();

private:
    QQuickItem *m_questionLabel = nullptr;
};
