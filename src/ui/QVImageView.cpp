// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVImageView.h"
#include "QVImageCache.h"
#include "QVPictureNetwork.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGImageNode>

namespace {
// True when the server answered, whatever the status; network-layer failures (a refused
// or dropped connection, a cut body) are not answers.
bool answered(const QNetworkReply *reply)
{
    const int error = reply->error();
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()
        && (error == QNetworkReply::NoError || error >= QNetworkReply::ContentAccessDenied);
}

void postToGui(QObject *context, std::function<void()> fn)
{
    QMetaObject::invokeMethod(context, std::move(fn), Qt::QueuedConnection);
}

// A prepared picture remembers the corner radius it was rounded with, so a view of
// another shape can tell that it must prepare it again.
constexpr QLatin1StringView kRadiusKey("quorva-corner-radius");

// The picture as a view of that many pixels shows it: scaled to fill, the longer side
// cropped, the corners rounded. Drawn once, off the GUI thread where it can be.
QImage prepared(const QImage &picture, const QSize &pixels, qreal radius)
{
    if (picture.isNull() || pixels.isEmpty())
        return picture;
    QImage target(pixels, QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::transparent);
    QPainter painter(&target);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath clip;
    clip.addRoundedRect(QRectF(QPointF(), QSizeF(pixels)), radius, radius);
    painter.setClipPath(clip);
    const QSizeF source = picture.size();
    const qreal scale = qMax(pixels.width() / source.width(), pixels.height() / source.height());
    const QSizeF drawn = source * scale;
    painter.drawImage(QRectF(QPointF((pixels.width() - drawn.width()) / 2, (pixels.height() - drawn.height()) / 2), drawn),
                      picture);
    painter.end();
    target.setText(kRadiusKey, QString::number(radius));
    return target;
}

// The format named by the first bytes. Otherwise the reader asks every installed format
// plugin in turn whether the bytes are its own, loading each one from disk on the first
// picture of a process. Anything else is still probed.
QByteArray formatOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return QByteArrayLiteral("png");
    if (bytes.startsWith("\xff\xd8\xff"))
        return QByteArrayLiteral("jpeg");
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return QByteArrayLiteral("gif");
    if (bytes.size() >= 12 && bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return QByteArrayLiteral("webp");
    return {};
}

// Decodes straight to about the size shown when the format allows, so a large picture
// never sits in memory at full size.
QImage decode(const QByteArray &bytes, const QSize &pixels)
{
    QBuffer buffer;
    buffer.setData(bytes);
    const QByteArray format = formatOf(bytes);
    QImageReader reader(&buffer, format);
    // Detection on, even a named format is offered to every plugin first.
    reader.setAutoDetectImageFormat(format.isEmpty());
    const QSize natural = reader.size();
    if (!pixels.isEmpty() && natural.isValid() && natural.width() > pixels.width() && natural.height() > pixels.height()) {
        reader.setScaledSize(natural.scaled(pixels, Qt::KeepAspectRatioByExpanding));
    }
    return reader.read();
}
} // namespace

QVImageView::QVImageView(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents, true);
}

QVImageView::~QVImageView() = default;

void QVImageView::setImageWithURL(const QUrl &url)
{
    if (m_downloadOperation)
        m_downloadOperation->cancelled = true;

    const QString key = url.toString();
    const QImage cached = QVImageCache::sharedImageCache()->object(key);
    if (!cached.isNull()) {
        // The cancelled operation stays current: a download already under way for it
        // will see the cancellation and stop.
        setImage(cached);
        return;
    }
    auto operation = std::make_shared<DownloadOperation>(DownloadOperation{url, false});
    m_downloadOperation = operation;
    // Queued, so that a later address given in the same pass cancels this one first.
    QMetaObject::invokeMethod(this, [this, operation] { downloadImage(operation); }, Qt::QueuedConnection);
}

void QVImageView::downloadImage(std::shared_ptr<DownloadOperation> operation)
{
    // A cancelled operation never starts. Once started, both checks read the view's
    // current operation, not the one running: a download that has started runs on
    // when the view is given another uncached address, and its picture may land
    // after the newer one.
    if (operation->cancelled || m_downloadOperation->cancelled)
        return;

    QNetworkReply *reply = QVPictureNetwork::get(operation->url);
    const QString key = operation->url.toString();
    QPointer<QVImageView> self(this);
    const QSize pixels = pixelSize();
    const qreal radius = m_cornerRadius * devicePixelRatio();
    connect(reply, &QNetworkReply::finished, reply, [reply, self, key, operation, pixels, radius] {
        reply->deleteLater();
        if (!answered(reply) || !self || self->m_downloadOperation->cancelled) {
            operation->finished = true;
            return;
        }
        const QByteArray bytes = reply->readAll();
        QVImageCache::sharedOperationQueue()->start([bytes, key, self, operation, pixels, radius] {
            // The status is not checked: a body that is no picture decodes to nothing
            // and clears the view.
            QImage image = decode(bytes, pixels);
            QVImageCache::sharedImageCache()->noteDecode(image.size());
            if (!image.isNull())
                image = prepared(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), pixels, radius);
            QVImageCache::sharedImageCache()->insert(key, image);
            postToGui(QCoreApplication::instance(), [self, image, operation] {
                operation->finished = true;
                if (self)
                    self->setImage(image);
            });
        });
    });
}

void QVImageView::setImage(const QImage &image)
{
    if (image.isNull() && m_image.isNull())
        return;
    if (!image.isNull() && image.cacheKey() == m_image.cacheKey())
        return;
    m_image = image;
    m_textureDirty = true;
    update();
    emit imageChanged();
}

void QVImageView::setCornerRadius(qreal radius)
{
    if (qFuzzyCompare(radius, m_cornerRadius))
        return;
    m_cornerRadius = radius;
    m_textureDirty = true;
    update();
    emit cornerRadiusChanged();
}

void QVImageView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        m_textureDirty = true;
        update();
    }
}

qreal QVImageView::devicePixelRatio() const
{
    if (window())
        return window()->effectiveDevicePixelRatio();
    return qApp ? qApp->devicePixelRatio() : 1.0;
}

QSize QVImageView::pixelSize() const
{
    return (size() * devicePixelRatio()).toSize();
}

QImage QVImageView::renderedImage() const
{
    // A picture prepared for this view's shape is shown as it is; one prepared for
    // another (a cached picture shown at another size) is prepared again.
    const QSize pixels = pixelSize();
    if (m_image.size() == pixels && m_image.text(kRadiusKey) == QString::number(m_cornerRadius * devicePixelRatio()))
        return m_image;
    return prepared(m_image, pixels, m_cornerRadius * devicePixelRatio());
}

QSGNode *QVImageView::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (m_image.isNull() || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_textureDirty = true;
    }
    if (m_textureDirty) {
        node->setTexture(window()->createTextureFromImage(renderedImage(), QQuickWindow::TextureCanUseAtlas));
        node->setFiltering(QSGTexture::Linear);
        m_textureDirty = false;
    }
    node->setRect(boundingRect());
    return node;
}
