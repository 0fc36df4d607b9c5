// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVImageCache.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>

namespace {
// QCache counts cost in ints; kilobytes keep a large bound within range.
qsizetype costOf(const QImage &image)
{
    return qMax<qsizetype>(1, image.sizeInBytes() / 1024);
}
} // namespace

QVImageCache::QVImageCache()
{
    m_cache.setMaxCost(kDefaultLimitBytes / 1024);
}

QVImageCache *QVImageCache::sharedImageCache()
{
    static QVImageCache *cache = new QVImageCache;
    return cache;
}

QThreadPool *QVImageCache::sharedOperationQueue()
{
    static QThreadPool *pool = [] {
        auto *p = new QThreadPool;
        p->setExpiryTimeout(30000);
        return p;
    }();
    return pool;
}

QImage QVImageCache::object(const QString &key) const
{
    QMutexLocker lock(&m_mutex);
    const QImage *image = m_cache.object(key);
    return image ? *image : QImage();
}

bool QVImageCache::contains(const QString &key) const
{
    QMutexLocker lock(&m_mutex);
    return m_cache.contains(key);
}

void QVImageCache::insert(const QString &key, const QImage &image)
{
    // An image that failed to decode is not worth remembering.
    if (image.isNull())
        return;
    QMutexLocker lock(&m_mutex);
    m_cache.insert(key, new QImage(image), costOf(image));
}

void QVImageCache::clear()
{
    QMutexLocker lock(&m_mutex);
    m_cache.clear();
}

qsizetype QVImageCache::limitBytes() const
{
    QMutexLocker lock(&m_mutex);
    return m_cache.maxCost() * 1024;
}

void QVImageCache::setLimitBytes(qsizetype bytes)
{
    QMutexLocker lock(&m_mutex);
    m_cache.setMaxCost(qMax<qsizetype>(1, bytes / 1024));
}

qsizetype QVImageCache::totalBytes() const
{
    QMutexLocker lock(&m_mutex);
    return m_cache.totalCost() * 1024;
}

qsizetype QVImageCache::count() const
{
    QMutexLocker lock(&m_mutex);
    return m_cache.count();
}

QVImageCache::Statistics QVImageCache::statistics() const
{
    QMutexLocker lock(&m_mutex);
    return m_statistics;
}

void QVImageCache::noteDecode(const QSize &decodedSize)
{
    const bool onGuiThread = QCoreApplication::instance()
        && QThread::currentThread() == QCoreApplication::instance()->thread();
    QMutexLocker lock(&m_mutex);
    ++m_statistics.decodes;
    m_statistics.decodesOnGuiThread += onGuiThread ? 1 : 0;
    m_statistics.largestDecoded = m_statistics.largestDecoded.expandedTo(decodedSize);
}
