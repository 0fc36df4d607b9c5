// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "PictureFactory.h"

#include <QtCore/QBuffer>
#include <QtGui/QFont>
#include <QtGui/QImage>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace quorva::sandbox {

namespace {
constexpr int kSize = 160;

QColor hueColor(std::int64_t seed, int saturation, int value)
{
    return QColor::fromHsv(static_cast<int>((seed * 47) % 360), saturation, value);
}
} // namespace

const std::string &PictureFactory::png(std::int64_t offerId, const std::string &title)
{
    if (auto it = m_cache.find(offerId); it != m_cache.end())
        return it->second;

    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const std::int64_t hueSeed = static_cast<std::int64_t>(std::hash<std::string>{}(title) % 1000);
    QLinearGradient gradient(0, 0, kSize, kSize);
    gradient.setColorAt(0, hueColor(hueSeed, 170, 235));
    gradient.setColorAt(1, hueColor(hueSeed + 3, 220, 170));
    QPainterPath card;
    card.addRoundedRect(QRectF(0, 0, kSize, kSize), 28, 28);
    painter.fillPath(card, gradient);

    // A soft motif that differs per offer.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 46));
    const int motif = static_cast<int>(offerId % 3);
    if (motif == 0)
        painter.drawEllipse(QPointF(kSize * 0.78, kSize * 0.22), 52, 52);
    else if (motif == 1)
        painter.drawRoundedRect(QRectF(kSize * 0.55, -20, 90, 90), 20, 20);
    else
        painter.drawEllipse(QPointF(kSize * 0.2, kSize * 0.85), 60, 60);

    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(76);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QString initial = QString::fromStdString(title).left(1).toUpper();
    painter.drawText(QRectF(0, 0, kSize, kSize), Qt::AlignCenter, initial);
    painter.end();

    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return m_cache.emplace(offerId, bytes.toStdString()).first->second;
}

} // namespace quorva::sandbox
