// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Flings a phone wall through 3,000 offers with pictures, one 45-point step a frame:
// GUI-thread CPU per frame, offer cells created, reused and alive, picture fetches per
// address, decodes on the GUI thread and decoded picture size. Run under a display.
#include "BenchSupport.h"
#include "QVImageCache.h"
#include "QVImageView.h"

#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>

namespace {
constexpr qreal kStep = 45;          // points a frame: a brisk fling at 60 frames a second
constexpr int kTimeLimitMs = 400000; // a run cut short by this is reported as truncated

QList<QVOfferUICollectionViewCell *> cellsBelow(QQuickItem *root)
{
    QList<QVOfferUICollectionViewCell *> cells;
    QList<QQuickItem *> items{root};
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (auto *cell = qobject_cast<QVOfferUICollectionViewCell *>(items[i]))
            cells.append(cell);
        else
            items += items[i]->childItems();
    }
    return cells;
}

// Picture requests per address, from the sandbox's request log.
QHash<QString, int> pictureFetches(const QString &logPath)
{
    QFile log(logPath);
    QHash<QString, int> fetches;
    if (!log.open(QIODevice::ReadOnly))
        return fetches;
    static const QRegularExpression picture(QStringLiteral(R"(^GET (/img/\d+\.png) )"));
    for (const QByteArray &line : log.readAll().split('\n')) {
        const auto match = picture.match(QString::fromUtf8(line));
        if (match.hasMatch())
            ++fetches[match.captured(1)];
    }
    return fetches;
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    // An optional argument scrolls through fewer offers (for profiling runs).
    const int target = argc > 1 ? QByteArray(argv[1]).toInt() : 3000;
    QTemporaryDir scratch;
    const QString logPath = scratch.filePath(QStringLiteral("requests.log"));
    SandboxProcess sandbox({QStringLiteral("--request-log"), logPath});
    if (!sandbox.isRunning())
        return 1;
    bench::useSandbox(sandbox, QStringLiteral("9"));
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
    QVImageCache *cache = QVImageCache::sharedImageCache();

    QQuickWindow window;
    window.resize(390, 780);
    QVOffersViewController *wall = QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("9"), QStringLiteral("user-1"), nullptr);
    wall->setParentItem(window.contentItem());
    wall->setSize(window.size());
    window.show();
    auto *list = wall->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    auto *content = list->property("contentItem").value<QQuickItem *>();
    bench::waitUntil([&] { return wall->offersList().size() >= 30; });
    bench::waitForFrame(&window);

    // Cells are told apart by identity: a new one was created, one showing another row
    // than before was reused.
    QSet<QVOfferUICollectionViewCell *> known;
    QObject tracking; // ends the watching before the counters go; cells may outlive them
    int created = 0;
    int reused = 0;
    int alive = 0;
    int maxAlive = 0;
    auto account = [&] {
        for (QVOfferUICollectionViewCell *cell : cellsBelow(content)) {
            if (known.contains(cell))
                continue;
            known.insert(cell);
            ++created;
            ++alive;
            QObject::connect(cell, &QVOfferUICollectionViewCell::rowChanged, &tracking, [&reused] { ++reused; });
            QObject::connect(cell, &QObject::destroyed, &tracking, [&, cell] {
                known.remove(cell);
                --alive;
            });
        }
        maxAlive = qMax(maxAlive, alive);
    };
    account();
    const int createdAtStart = created;

    std::vector<double> cpuMs;
    std::vector<double> swapMs;
    QElapsedTimer total;
    total.start();
    bool truncated = true;
    while (total.elapsed() < kTimeLimitMs) {
        const qreal maxY = list->property("contentHeight").toReal() - list->height()
            + list->property("originY").toReal() + list->property("bottomMargin").toReal();
        const qreal y = list->property("contentY").toReal();
        if (wall->offersList().size() >= target && y >= maxY - 1) {
            truncated = false;
            break;
        }
        QElapsedTimer frame;
        frame.start();
        const double cpuBefore = bench::threadCpuMs();
        list->setProperty("contentY", qMin(y + kStep, qMax(maxY, y)));
        bench::waitForFrame(&window);
        cpuMs.push_back(bench::threadCpuMs() - cpuBefore);
        swapMs.push_back(double(frame.nsecsElapsed()) / 1e6);
        account(); // outside the measured part
    }
    bench::waitUntil([] { return false; }, 1500); // the last pictures land

    int visibleRows = int(list->height() / QVOffersViewController::sizeForItem(list->width()).height()) + 1;
    const QHash<QString, int> fetches = pictureFetches(logPath);
    int maxFetches = 0;
    for (int count : fetches)
        maxFetches = qMax(maxFetches, count);
    const QVImageCache::Statistics decoding = cache->statistics();
    QSizeF shown;
    for (QVOfferUICollectionViewCell *cell : cellsBelow(content)) {
        if (cell->thumbImage() && cell->isVisible())
            shown = cell->thumbImage()->size() * window.effectiveDevicePixelRatio();
    }
    const double shownBytes = shown.width() * shown.height() * 4;
    const double perMiB = cache->count() / (double(cache->totalBytes()) / (1024.0 * 1024.0));

    std::printf("run: %lld offers in %.1f s, %zu frames%s\n", static_cast<long long>(wall->offersList().size()),
                double(total.elapsed()) / 1000.0, cpuMs.size(), truncated ? " -- TRUNCATED before the end" : "");
    std::printf("frame swap to swap: median %.2f ms, p99 %.2f ms; GUI-thread CPU: median %.2f ms\n",
                bench::median(swapMs), bench::percentile(swapMs, 0.99), bench::median(cpuMs));
    std::printf("cells: %d created (%d for the first screen), %d reuses, at most %d alive; rows visible %d\n",
                created, createdAtStart, reused, maxAlive, visibleRows);
    std::printf("pictures: %lld addresses fetched, at most %d times each; %lld decodes, %lld on the GUI thread; "
                "largest decoded %dx%d, shown %.0fx%.0f device pixels\n",
                static_cast<long long>(fetches.size()), maxFetches, static_cast<long long>(decoding.decodes),
                static_cast<long long>(decoding.decodesOnGuiThread), decoding.largestDecoded.width(),
                decoding.largestDecoded.height(), shown.width(), shown.height());
    if (truncated)
        std::printf("TRUNCATED: the figures below cover only the part that ran\n");
    bench::verdict("GUI-thread CPU per frame (p99)", bench::percentile(cpuMs, 0.99), 1.5, "ms",
                   QStringLiteral("fixed"));
    bench::verdict("cell items alive at once (max)", maxAlive, visibleRows + 2, "",
                   QStringLiteral("rows visible + 2"));
    bench::verdict("cell items created over the scroll", created, visibleRows + 4, "",
                   QStringLiteral("rows visible + 4"));
    bench::verdict("fetches per picture address (max)", maxFetches, 1, "", QStringLiteral("once each"));
    bench::verdict("picture decodes on the GUI thread", double(decoding.decodesOnGuiThread), 0, "",
                   QStringLiteral("none"));
    bench::verdict("cache bytes per picture", 1024.0 * 1024.0 / perMiB, shownBytes, "B",
                   QStringLiteral("the picture at its shown size x pixel ratio"));
    delete wall;
    return 0;
}
