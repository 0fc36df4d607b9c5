// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QCache>
#include <QtCore/QMutex>
#include <QtGui/QImage>

class QThreadPool;

/// Process-wide cache of decoded pictures keyed by address, bounded by the bytes of the
/// decoded images (least recently used go first). Safe from any thread: downloads
/// store into it from the decoding pool.
class QUORVAMEDIA_EXPORT QVImageCache
{
public:
    /// The bound until one is set, in bytes of decoded pictures.
    static constexpr qsizetype kDefaultLimitBytes = 48 * 1024 * 1024;

    /// The cache every picture of the library goes through.
    static QVImageCache *sharedImageCache();
    /// Pool on which downloaded pictures are decoded.
    static QThreadPool *sharedOperationQueue();

    /// What decoding has cost so far, for hosts and benchmarks that watch it.
    struct Statistics
    {
        qint64 decodes = 0;             ///< Pictures decoded.
        qint64 decodesOnGuiThread = 0;  ///< Of those, decoded on the GUI thread (should stay 0).
        QSize largestDecoded;           ///< The largest decoded size, in pixels.
    };
    /// The figures so far.
    Statistics statistics() const;
    /// Called by the picture loader for every picture it decodes.
    void noteDecode(const QSize &decodedSize);

    /// The picture stored for the address, or a null image; marks it as recently used.
    QImage object(const QString &key) const;
    /// True when a picture is stored for the address.
    bool contains(const QString &key) const;
    /// Stores a picture for the address, dropping the least recently used past the bound;
    /// a picture larger than the whole bound is not kept.
    void insert(const QString &key, const QImage &image);
    /// Drops every picture.
    void clear();

    ///@{
    /// The bound, in bytes of decoded pictures; lowering it drops pictures at once.
    qsizetype limitBytes() const;
    void setLimitBytes(qsizetype bytes);
    ///@}
    /// The bytes the stored pictures take.
    qsizetype totalBytes() const;
    /// The number of stored pictures.
    qsizetype count() const;

private:
    QVImageCache();
    mutable QMutex m_mutex;
    QCache<QString, QImage> m_cache;
    Statistics m_statistics;
};
