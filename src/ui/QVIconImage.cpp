// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVIconImage.h"
#include "QuorvaLog.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlFile>
#include <QtQuick/QQuickWindow>
#include <QtSvg/QSvgRenderer>

QVIconImage::QVIconImage(QQuickItem *parent) : QVImageView(parent) {}

void QVIconImage::setSource(const QUrl &source)
{
    if (m_source == source)
        return;
    m_source = source;
    polish();
    emit sourceChanged();
}

void QVIconImage::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    polish();
    emit colorChanged();
}

void QVIconImage::setMirror(bool mirror)
{
    if (m_mirror == mirror)
        return;
    m_mirror = mirror;
    polish();
    emit mirrorChanged();
}

void QVIconImage::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QVImageView::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        polish();
}

void QVIconImage::itemChange(ItemChange change, const ItemChangeData &data)
{
    QVImageView::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && data.window))
        polish();
}

// Drawn once per change, in the layout pass before the frame, at the pixels shown.
void QVIconImage::updatePolish()
{
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : qApp->devicePixelRatio();
    const QSize pixels = (size() * ratio).toSize();
    if (m_source.isEmpty() || pixels.isEmpty()) {
        setImage({});
        return;
    }
    const QQmlContext *context = qmlContext(this);
    const QUrl file = context ? context->resolvedUrl(m_source) : m_source;
    QSvgRenderer svg(QQmlFile::urlToLocalFileOrQrc(file));
    if (!svg.isValid()) {
        qCWarning(lcQuorva).noquote() << "icon not readable:" << file.toString();
        setImage({});
        return;
    }
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage icon(pixels, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    if (m_mirror)
        painter.setTransform(QTransform(-1, 0, 0, 1, pixels.width(), 0));
    svg.render(&painter);
    painter.resetTransform();
    if (m_color.isValid()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(icon.rect(), m_color);
    }
    painter.end();
    setImage(icon);
}
