// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtQuick/QQuickItem>

#include <memory>

/// An item that shows a picture fetched from an address. Pictures are shared through a
/// process-wide cache; a cached address shows at once. Until a download completes the
/// item keeps whatever it showed; a failed download changes nothing.
class QUORVAMEDIA_EXPORT QVImageView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The picture shown; null for none.
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged FINAL)
    /// The radius of the picture's rounded corners, in points.
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged FINAL)
    /// True while a picture shows.
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY imageChanged FINAL)

public:
    /// One download of one view. It stays the view's current operation after it ends or
    /// is cancelled, until the view is given another uncached address.
    struct DownloadOperation
    {
        QUrl url;               ///< The address being fetched.
        bool cancelled = false; ///< A later address replaced it before it started.
        bool finished = false;  ///< Its download ended, whatever the outcome.
    };

    /// An empty picture item.
    explicit QVImageView(QQuickItem *parent = nullptr);
    /// A download under way goes on into the cache but no longer shows here.
    ~QVImageView() override;

    /// Shows the picture at the address: at once when cached, else once downloaded.
    Q_INVOKABLE void setImageWithURL(const QUrl &url);

    ///@{
    /// See the properties of the same names.
    QImage image() const { return m_image; }
    void setImage(const QImage &image);
    bool hasImage() const { return !m_image.isNull(); }
    qreal cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(qreal radius);
    ///@}

    /// The view's current download, or null.
    std::shared_ptr<DownloadOperation> downloadOperation() const { return m_downloadOperation; }

signals:
    ///@{
    /// Emitted when the property of the same name changes.
    void imageChanged();
    void cornerRadiusChanged();
    ///@}

protected:
    ///@{
    /// Reimplemented from QQuickItem.
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    ///@}

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
