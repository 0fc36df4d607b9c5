// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// The expanded FAQ row: question and answer; its height follows the answer's lines.
/// The layout numbers live here so the height can be computed without a cell on screen.
class QUORVAMEDIA_EXPORT QVQACollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVQACollectionViewCellBase)
    /// Outlet: the question label, set by the interface file.
    Q_PROPERTY(QQuickItem *questionLabel MEMBER m_questionLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the answer label, set by the interface file.
    Q_PROPERTY(QQuickItem *answerLabel MEMBER m_answerLabel NOTIFY outletsChanged FINAL)
    /// The card's distance from the row's sides, in points.
    Q_PROPERTY(qreal cardMarginX READ cardMarginX CONSTANT FINAL)
    /// The card's distance from the row's top and bottom, in points.
    Q_PROPERTY(qreal cardMarginY READ cardMarginY CONSTANT FINAL)
    /// The space inside the card around the texts, in points.
    Q_PROPERTY(qreal padding READ padding CONSTANT FINAL)
    /// The space between question and answer, in points.
    Q_PROPERTY(qreal spacing READ spacing CONSTANT FINAL)
    /// The width kept for the chevron beside the question, in points.
    Q_PROPERTY(qreal accessoryWidth READ accessoryWidth CONSTANT FINAL)
    /// The question's font size, in pixels.
    Q_PROPERTY(int questionPixelSize READ questionPixelSize CONSTANT FINAL)
    /// The answer's font size, in pixels.
    Q_PROPERTY(int answerPixelSize READ answerPixelSize CONSTANT FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVQACollectionViewCell".
    static QString identifier() { return QStringLiteral("QVQACollectionViewCell"); }

    ///@{
    /// See the properties of the same names.
    static qreal cardMarginX() { return 12; }
    static qreal cardMarginY() { return 6; }
    static qreal padding() { return 16; }
    static qreal spacing() { return 10; }
    static qreal accessoryWidth() { return 28; } // the chevron beside the question
    static int questionPixelSize() { return 16; }
    static int answerPixelSize() { return 15; }
    ///@}

    /// The height a cell of that width needs to show the whole question and answer.
    static qreal fittingHeight(const QString &question, const QString &answer, qreal width);
    /// The height a closed row of that width needs to show the whole question.
    Q_DECL_HIDDEN static qreal fittingQuestionHeight(const QString &question, qreal width);

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QQuickItem *m_questionLabel = nullptr;
    QQuickItem *m_answerLabel = nullptr;
};
