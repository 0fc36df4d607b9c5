#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QCache>
#include <QtCore/QMutex>
#include <QtGui/QImage>

class QThreadPool;

// Process-wide cache of decoded pictures keyed by address, bounded by the bytes of the
// decoded images (least recently used go first). Safe from any thread: downloads
// store into it from the decoding pool.
class QUORVAMEDIA_EXPORT QVImageCache
{
public:
    static constexpr qsizetype kDefaultLimitBytes = 48 * 1024 * 1024;

    static QVImageCache *sharedImageCache();
    // Pool on which downloaded pictures are decoded.
    static QThreadPool *sharedOperationQueue();

    // What decoding has cost so far, for hosts and benchmarks that watch it.
    struct Statistics
    {
        qint64 decodes = 0;
        qint64 decodesOnGuiThread = 0;
        QSize largestDecoded;
    };
    Statistics statistics() const;
    // Called by the picture loader for every picture it decodes.
    void noteDecode(const QSize &decodedSize);

    QImage object(const QString &key) const;
    bool contains(const QString &key) const;
    void insert(const QString &key, const QImage &image);
    void clear();

    qsizetype limitBytes() const;
    void setLimitBytes(qsizetype bytes);
    qsizetype totalBytes() const;
    qsizetype count() const;

private:
    QVImageCache();
    mutable QMutex m_mutex;
    QCache<QString, QImage> m_cache;
    Statistics m_statistics;
};
