#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtQuick/QQuickItem>

#include <memory>

// An item that shows a picture fetched from an address. Pictures are shared through a
// process-wide cache; a cached address shows at once. Until a download completes the
// item keeps whatever it showed; a failed download changes nothing.
class QUORVAMEDIA_EXPORT QVImageView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged FINAL)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged FINAL)
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY imageChanged FINAL)

public:
    // One download of one view. It stays the view's current operation after it ends or
    // is cancelled, until the view is given another uncached address.
    struct DownloadOperation
    {
        QUrl url;
        bool cancelled = false;
        bool finished = false;  // its download ended, whatever the outcome
    };

    explicit QVImageView(QQuickItem *parent = nullptr);
    ~QVImageView() override;

    Q_INVOKABLE void setImageWithURL(const QUrl &url);

    QImage image() const { return m_image; }
    void setImage(const QImage &image);
    bool hasImage() const { return !m_image.isNull(); }
    qreal cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(qreal radius);

    std::shared_ptr<DownloadOperation> downloadOperation() const { return m_downloadOperation; }

signals:
    void imageChanged();
    void cornerRadiusChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    Q_DECL_HIDDEN void downloadImage(std::shared_ptr<DownloadOperation> operation);
    Q_DECL_HIDDEN QImage renderedImage() const;
    Q_DECL_HIDDEN qreal devicePixelRatio() const;
    Q_DECL_HIDDEN QSize pixelSize() const;

    QImage m_image;
    qreal m_cornerRadius = 0;
    std::shared_ptr<DownloadOperation> m_downloadOperation;
    bool m_textureDirty = true;
};
