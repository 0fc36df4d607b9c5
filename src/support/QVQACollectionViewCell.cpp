// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVQACollectionViewCell.h"
#include "DeviceIdiom.h"

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextLayout>

#include <cmath>

namespace {
constexpr int kClosedQuestionPixelSize = 16;

// Lays the text out the way a wrapping text item of that width does and adds up its lines.
qreal wrappedHeight(QString text, int pixelSize, bool bold, qreal width)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(qMax<qreal>(1, width));
        height += line.height();
    }
    layout.endLayout();
    return std::ceil(height);
}
} // namespace

qreal QVQACollectionViewCell::fittingHeight(const QString &question, const QString &answer, qreal width)
{
    const qreal textWidth = width - 2 * (cardMarginX() + padding());
    return 2 * cardMarginY() + 2 * padding() + spacing()
        + wrappedHeight(question, quorva::detail::scaledPixelSize(questionPixelSize()), true, textWidth - accessoryWidth())
        + wrappedHeight(answer, quorva::detail::scaledPixelSize(answerPixelSize()), false, textWidth);
}

qreal QVQACollectionViewCell::fittingQuestionHeight(const QString &question, qreal width)
{
    // The closed row: card margins 12 and 6, label margins 16 and 8 and 6, a 20-point chevron
    // 12 from the edge.
    constexpr qreal kAcross = 2 * 12 + 16 + 8 + 20 + 12;
    constexpr qreal kAbove = 2 * 6 + 2 * 6;
    return kAbove + wrappedHeight(question, quorva::detail::scaledPixelSize(kClosedQuestionPixelSize), true, width - kAcross);
}
