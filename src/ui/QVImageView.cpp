#include "QVImageView.h"
#include "QVImageCache.h"
#include "QVPictureNetwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
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
    connect(reply, &QNetworkReply::finished, reply, [reply, self, key, operation] {
        reply->deleteLater();
        if (!answered(reply) || !self || self->m_downloadOperation->cancelled) {
            operation->finished = true;
            return;
        }
        const QByteArray bytes = reply->readAll();
        QVImageCache::sharedOperationQueue()->start([bytes, key, self, operation] {
            // The status is not checked: a body that is no picture decodes to nothing
            // and clears the view.
            QImage image;
            image.loadFromData(bytes);
            QVImageCache::sharedImageCache()->noteDecode(image.size());
            if (!image.isNull())
                image.convertTo(QImage::Format_ARGB32_Premultiplied);
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

QImage QVImageView::renderedImage() const
{
    // Fill the item, cropping the picture's longer side, with rounded corners; drawn
    // once per picture and size rather than every frame.
    const qreal dpr = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QSize pixels = (size() * dpr).toSize();
    if (pixels.isEmpty() || m_image.isNull())
        return {};
    QImage target(pixels, QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::transparent);
    QPainter painter(&target);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath clip;
    clip.addRoundedRect(QRectF(QPointF(), QSizeF(pixels)), m_cornerRadius * dpr, m_cornerRadius * dpr);
    painter.setClipPath(clip);
    const QSizeF source = m_image.size();
    const qreal scale = qMax(pixels.width() / source.width(), pixels.height() / source.height());
    const QSizeF drawn = source * scale;
    painter.drawImage(QRectF(QPointF((pixels.width() - drawn.width()) / 2, (pixels.height() - drawn.height()) / 2), drawn),
                      m_image);
    return target;
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
        node->setTexture(window()->createTextureFromImage(renderedImage()));
        node->setFiltering(QSGTexture::Linear);
        m_textureDirty = false;
    }
    node->setRect(boundingRect());
    return node;
}
