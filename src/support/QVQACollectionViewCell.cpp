// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVQACollectionViewCell.h"

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextLayout>

#include <cmath>

namespace {
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
        + wrappedHeight(question, questionPixelSize(), true, textWidth - accessoryWidth())
        + wrappedHeight(answer, answerPixelSize(), false, textWidth);
}
