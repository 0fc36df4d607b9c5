// Scrolls a phone wall through 3,000 offers with pictures: frame times, live delegate
// items, memory and the picture cache's high-water mark. Run under a display.
#include "BenchSupport.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    // An optional argument scrolls through fewer offers (for profiling runs).
    const int target = argc > 1 ? QByteArray(argv[1]).toInt() : 3000;
    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 1;
    bench::useSandbox(sandbox, QStringLiteral("9"));
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
    QVImageCache *cache = QVImageCache::sharedImageCache();

    const long rssBefore = bench::residentKiB();
    QQuickWindow window;
    window.resize(390, 780);
    QVOffersViewController *wall = QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("9"), QStringLiteral("user-1"), nullptr);
    wall->setParentItem(window.contentItem());
    wall->setSize(window.size());
    window.show();
    auto *list = wall->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    auto *content = list->property("contentItem").value<QQuickItem *>();
    bench::spinUntil([&] { return wall->offersList().size() >= 30; });
    const long rssLoaded = bench::residentKiB();

    constexpr qreal kStep = 45; // points per frame: a brisk fling at 60 frames a second
    std::vector<double> frameMs;
    int maxLiveCells = 0;
    int visibleRows = 0;
    qsizetype cacheHighWater = 0;
    QElapsedTimer sinceLastFrame;
    bool frameDone = false;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { frameDone = true; }, Qt::DirectConnection);

    QElapsedTimer total;
    total.start();
    sinceLastFrame.start();
    while (total.elapsed() < 240000) {
        const qreal contentHeight = list->property("contentHeight").toReal();
        const qreal maxY = contentHeight - list->height() + list->property("topMargin").toReal();
        const qreal y = list->property("contentY").toReal();
        if (wall->offersList().size() >= target && y >= maxY - 1)
            break;
        list->setProperty("contentY", qMin(y + kStep, qMax(maxY, y)));
        frameDone = false;
        window.update();
        bench::spinUntil([&] { return frameDone; }, 2000);
        frameMs.push_back(double(sinceLastFrame.nsecsElapsed()) / 1e6);
        sinceLastFrame.restart();

        int live = 0;
        for (QQuickItem *child : content->childItems()) {
            if (qobject_cast<QVOfferUICollectionViewCell *>(child) && child->isVisible())
                ++live;
        }
        maxLiveCells = qMax(maxLiveCells, live);
        cacheHighWater = qMax(cacheHighWater, cache->totalBytes());
    }
    visibleRows = int(list->height() / QVOffersViewController::sizeForItem(list->width()).height()) + 1;
    bench::spinUntil([] { return false; }, 1500); // let the last pictures land
    const long rssAfter = bench::residentKiB();

    std::printf("offers loaded: %lld in %.1f s, %zu frames\n", static_cast<long long>(wall->offersList().size()),
                double(total.elapsed()) / 1000.0, frameMs.size());
    std::printf("frame time: median %.2f ms, p99 %.2f ms\n", bench::percentile(frameMs, 0.5),
                bench::percentile(frameMs, 0.99));
    std::printf("live offer cells: max %d (rows visible at once: %d)\n", maxLiveCells, visibleRows);
    std::printf("resident memory: %ld KiB before the wall, %ld KiB after the first page, %ld KiB after 3000 offers\n",
                rssBefore, rssLoaded, rssAfter);
    std::printf("picture cache: high-water %lld KiB, bound %lld KiB, %lld pictures held at the end\n",
                static_cast<long long>(cacheHighWater / 1024), static_cast<long long>(cache->limitBytes() / 1024),
                static_cast<long long>(cache->count()));
    delete wall;
    return 0;
}
