#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// The expanded FAQ row: question and answer; its height follows the answer's lines.
// The layout numbers live here so the height can be computed without a cell on screen.
class QUORVAMEDIA_EXPORT QVQACollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVQACollectionViewCellBase)
    Q_PROPERTY(QQuickItem *questionLabel MEMBER m_questionLabel NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *answerLabel MEMBER m_answerLabel NOTIFY outletsChanged FINAL)
    Q_PROPERTY(qreal cardMarginX READ cardMarginX CONSTANT FINAL)
    Q_PROPERTY(qreal cardMarginY READ cardMarginY CONSTANT FINAL)
    Q_PROPERTY(qreal padding READ padding CONSTANT FINAL)
    Q_PROPERTY(qreal spacing READ spacing CONSTANT FINAL)
    Q_PROPERTY(qreal accessoryWidth READ accessoryWidth CONSTANT FINAL)
    Q_PROPERTY(int questionPixelSize READ questionPixelSize CONSTANT FINAL)
    Q_PROPERTY(int answerPixelSize READ answerPixelSize CONSTANT FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVQACollectionViewCell"); }

    static qreal cardMarginX() { return 12; }
    static qreal cardMarginY() { return 6; }
    static qreal padding() { return 16; }
    static qreal spacing() { return 10; }
    static qreal accessoryWidth() { return 28; } // the chevron beside the question
    static int questionPixelSize() { return 16; }
    static int answerPixelSize() { return 15; }

    // The height a cell of that width needs to show the whole question and answer.
    static qreal fittingHeight(const QString &question, const QString &answer, qreal width);

signals:
    void outletsChanged();

private:
    QQuickItem *m_questionLabel = nullptr;
    QQuickItem *m_answerLabel = nullptr;
};
