// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Time from creating the wall to the frame that shows its first offer cell, against a
// bare request for the same page (QNetworkAccessManager GET and QJsonDocument::fromJson).
// Warm walls are measured in this process; the first wall of a process (cold) and the
// first bare request of a process are each measured in fresh child processes, against
// the floor: a fresh process's first text on a rectangle. Fresh processes also open their
// first overlay, timed frame by frame. Run under a display (xvfb-run).
#include "BenchSupport.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslConfiguration>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <algorithm>
#include <memory>
#include <mutex>

namespace {
constexpr double kFrameMs = 16.7;
constexpr int kWarmRuns = 15;
constexpr int kColdRuns = 9;

QString pageAddress(const QString &base)
{
    return QStringLiteral("https://%1/corvel/api/publisher/1042/profile/7/offers.json?subid1=user-1&limit=30&offset=0"
                          "&sort_order=desc&device=00000000-0000-0000-0000-000000000000&limit_tracking=0"
                          "&sort_by=popularity")
        .arg(base);
}

// The first filled cell is on screen once a frame has been swapped after it existed.
bool hasFilledCell(QQuickItem *wall)
{
    QList<QQuickItem *> items{wall};
    for (qsizetype i = 0; i < items.size(); ++i) {
        auto *cell = qobject_cast<QVOfferUICollectionViewCell *>(items[i]);
        if (cell && cell->isVisible() && !cell->offerName().isEmpty())
            return true;
        items += items[i]->childItems();
    }
    return false;
}

// Milliseconds from creating a wall in the window to the frame that shows its first cell.
double timeFirstCell(QQuickWindow &window)
{
    QElapsedTimer timer;
    timer.start();
    QVOffersViewController *wall = QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), nullptr);
    const double created = double(timer.nsecsElapsed()) / 1e6;
    wall->setParentItem(window.contentItem());
    wall->setSize(window.size());
    const double requested = double(timer.nsecsElapsed()) / 1e6;
    double arrived = -1;
    QObject::connect(wall, &QVOffersViewController::offerCountChanged, wall, [&] {
        if (arrived < 0)
            arrived = double(timer.nsecsElapsed()) / 1e6;
    });
    bool shown = false;
    while (!shown) {
        bench::waitForFrame(&window);
        shown = hasFilledCell(wall);
    }
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    if (qEnvironmentVariableIsSet("QUORVA_BENCH_PHASES"))
        std::fprintf(stderr, "[monotonic end %.6f s] created %.1f, entered window %.1f, offers arrived %.1f, cell on screen %.1f ms\n",
                     double(std::chrono::steady_clock::now().time_since_epoch().count()) / 1e9, created,
                     requested, arrived, ms);
    delete wall;
    bench::waitForFrame(&window);
    return ms;
}

// Milliseconds for a bare GET of the page and its JSON parse, on the given manager.
double timeBareRequest(QNetworkAccessManager &network, const QSslConfiguration &trust, const QString &address)
{
    QElapsedTimer timer;
    timer.start();
    QNetworkRequest request{QUrl(address)};
    request.setSslConfiguration(trust);
    QNetworkReply *reply = network.get(request);
    qsizetype offers = -1;
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply, &offers] {
        offers = QJsonDocument::fromJson(reply->readAll()).object().value(QStringLiteral("offers")).toArray().size();
        reply->deleteLater();
    });
    bench::waitUntil([&offers] { return offers >= 0; });
    return double(timer.nsecsElapsed()) / 1e6;
}

std::unique_ptr<QQuickWindow> shownWindow()
{
    auto window = std::make_unique<QQuickWindow>();
    window->resize(390, 780);
    window->show();
    bench::waitUntil([&] { return window->isExposed(); });
    bench::waitForFrame(window.get());
    return window;
}

QSslConfiguration trustFor(const QString &caPath)
{
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.addCaCertificates(QSslCertificate::fromPath(caPath));
    return trust;
}

// What any first Qt Quick content costs a fresh process on this machine, with no network:
// an engine, the QtQuick import, one text on a rounded rectangle, and the frame that
// shows them. The wall cannot be on screen sooner than this in a fresh process.
double timeFirstContent(QQuickWindow &window)
{
    QElapsedTimer timer;
    timer.start();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\n"
                      "Rectangle { width: 200; height: 60; radius: 8; color: \"#f2f2f7\"\n"
                      "    Text { anchors.centerIn: parent; text: \"Install and open 1,250\" } }\n",
                      QUrl());
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.create()));
    item->setParentItem(window.contentItem());
    bench::waitForFrame(&window);
    return double(timer.nsecsElapsed()) / 1e6;
}

// A preload for the wall timeFirstCell() creates, ready and given the idle time a host's
// user would leave it before tapping.
bool preloadReady()
{
    QVOfferWallPreload *preload = QVOffersViewController::preloadForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
    const bool ready = bench::waitUntil([preload] { return preload->isReady() || preload->isFailed(); })
        && preload->isReady();
    QDeadlineTimer idle(300);
    bench::waitUntil([&idle] { return idle.hasExpired(); });
    return ready;
}

// The longest time between frames while a wall of a fresh process opens its first
// overlay (the filter panel or the support centre): from the press, through creating the
// overlay's interface, to the end of its opening animation.
double longestOverlayFrame(QQuickWindow &window, bool support)
{
    QVOffersViewController *wall = QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), nullptr);
    wall->setParentItem(window.contentItem());
    wall->setSize(window.size());
    while (!hasFilledCell(wall))
        bench::waitForFrame(&window);
    QDeadlineTimer rest(300);
    bench::waitUntil([&rest] { return rest.hasExpired(); });

    // Swaps are timed on the render thread, where they happen.
    std::mutex lock;
    std::vector<qint64> swaps;
    QElapsedTimer timer;
    timer.start();
    const auto connection = QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [&] {
            const std::lock_guard guard(lock);
            swaps.push_back(timer.nsecsElapsed());
        },
        Qt::DirectConnection);
    if (support)
        wall->onSupportPressed();
    else
        wall->onFilterPressed();
    QDeadlineTimer opening(800);
    bench::waitUntil([&opening] { return opening.hasExpired(); });
    QObject::disconnect(connection);
    const std::lock_guard guard(lock);
    qint64 previous = 0;
    qint64 longest = 0;
    for (qint64 swap : swaps) {
        longest = std::max(longest, swap - previous);
        if (qEnvironmentVariableIsSet("QUORVA_BENCH_PHASES"))
            std::fprintf(stderr, "frame %.1f ms after the last\n", double(swap - previous) / 1e6);
        previous = swap;
    }
    return swaps.empty() ? -1 : double(longest) / 1e6;
}

// A child process: one cold measurement, printed as milliseconds.
int runChild(const QString &mode, const QString &base, const QString &caPath)
{
    auto window = shownWindow();
    double ms = 0;
    if (mode == QLatin1String("--cold-wall") || mode == QLatin1String("--cold-preloaded-wall")) {
        QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(base);
        QuorvaRestAPI::sharedInstance()->addCaCertificates(QSslCertificate::fromPath(caPath));
        if (mode == QLatin1String("--cold-preloaded-wall") && !preloadReady())
            return 1;
        ms = timeFirstCell(*window);
    } else if (mode == QLatin1String("--first-filters") || mode == QLatin1String("--first-support")) {
        QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(base);
        QuorvaRestAPI::sharedInstance()->addCaCertificates(QSslCertificate::fromPath(caPath));
        ms = longestOverlayFrame(*window, mode == QLatin1String("--first-support"));
        if (ms < 0)
            return 1;
    } else if (mode == QLatin1String("--cold-content")) {
        ms = timeFirstContent(*window);
    } else {
        QNetworkAccessManager network;
        ms = timeBareRequest(network, trustFor(caPath), pageAddress(base));
    }
    std::printf("%.3f\n", ms);
    return 0;
}

std::vector<double> coldRuns(const QString &mode, const SandboxProcess &sandbox, const QString &caPath)
{
    std::vector<double> runs;
    for (int i = 0; i < kColdRuns; ++i) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QCoreApplication::applicationFilePath(), {mode, sandbox.baseAddress(), caPath});
        if (child.waitForFinished(60000) && child.exitCode() == 0)
            runs.push_back(child.readAllStandardOutput().trimmed().toDouble());
    }
    return runs;
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
    const QStringList arguments = app.arguments();
    if (arguments.size() == 4)
        return runChild(arguments[1], arguments[2], arguments[3]);

    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 1;
    QTemporaryDir scratch;
    const QString caPath = scratch.filePath(QStringLiteral("ca.pem"));
    {
        QFile ca(caPath);
        ca.open(QIODevice::WriteOnly);
        for (const QSslCertificate &certificate : sandbox.caCertificates())
            ca.write(certificate.toPem());
    }
    bench::useSandbox(sandbox);
    auto window = shownWindow();
    QNetworkAccessManager network;
    const QSslConfiguration trust = trustFor(caPath);
    const QString address = pageAddress(sandbox.baseAddress());

    // Warm: the engine has built a wall before and the bare request's connection is up.
    timeFirstCell(*window);
    timeBareRequest(network, trust, address);
    std::vector<double> wallMs;
    std::vector<double> bareMs;
    for (int i = 0; i < kWarmRuns; ++i) {
        bareMs.push_back(timeBareRequest(network, trust, address));
        wallMs.push_back(timeFirstCell(*window));
    }
    // The same wall, preloaded, with the service 150 ms away.
    std::vector<double> preloadedFarMs;
    {
        SandboxProcess far({QStringLiteral("--latency"), QStringLiteral("150")});
        if (!far.isRunning())
            return 1;
        bench::useSandbox(far);
        for (int i = 0; i < kWarmRuns; ++i) {
            if (preloadReady())
                preloadedFarMs.push_back(timeFirstCell(*window));
        }
        bench::useSandbox(sandbox);
    }
    const std::vector<double> coldWall = coldRuns(QStringLiteral("--cold-wall"), sandbox, caPath);
    const std::vector<double> coldPreloaded = coldRuns(QStringLiteral("--cold-preloaded-wall"), sandbox, caPath);
    const std::vector<double> coldBare = coldRuns(QStringLiteral("--cold-bare"), sandbox, caPath);
    const std::vector<double> coldContent = coldRuns(QStringLiteral("--cold-content"), sandbox, caPath);

    const std::vector<double> firstFilters = coldRuns(QStringLiteral("--first-filters"), sandbox, caPath);
    const std::vector<double> firstSupport = coldRuns(QStringLiteral("--first-support"), sandbox, caPath);

    const double bare = bench::median(bareMs);
    const double cold = bench::median(coldBare);
    std::printf("bare request (GET + fromJson): warm median %.2f ms over %d, cold median %.2f ms over %zu processes\n",
                bare, kWarmRuns, cold, coldBare.size());
    bench::verdict("wall to first cell on screen, warm (median)", bench::median(wallMs), 1.3 * bare + kFrameMs, "ms",
                   QStringLiteral("1.3 x bare %1 ms + one frame").arg(bare, 0, 'f', 2));
    // The floor: what a fresh process pays for Qt Quick, its window and a first frame with
    // a text on a rectangle, and nothing of the wall's. What the wall adds on top is its own.
    const double floor = bench::median(coldContent);
    std::printf("floor: a fresh process's first text on a rectangle, no network: median %.2f ms over %zu processes\n",
                floor, coldContent.size());
    bench::verdict("first wall of a process, cold (median)", bench::median(coldWall), 1.6 * floor, "ms",
                   QStringLiteral("1.6 x the floor %1 ms").arg(floor, 0, 'f', 2));
    const double warmWall = bench::median(wallMs);
    bench::verdict("preloaded wall, service 150 ms away (median)", bench::median(preloadedFarMs), 1.2 * warmWall, "ms",
                   QStringLiteral("1.2 x warm wall %1 ms, no latency").arg(warmWall, 0, 'f', 2));
    bench::verdict("first wall of a process, preloaded (median)", bench::median(coldPreloaded), 1.2 * floor, "ms",
                   QStringLiteral("1.2 x the floor %1 ms").arg(floor, 0, 'f', 2));
    // Each process's longest frame while its first overlay opens; the worst of them counts.
    const auto worst = [](const std::vector<double> &runs) {
        return runs.empty() ? 0.0 : *std::max_element(runs.begin(), runs.end());
    };
    bench::verdict("first filter panel, longest frame (worst process)", worst(firstFilters), 50, "ms",
                   QStringLiteral("50 ms; median %1 ms over %2 processes")
                       .arg(bench::median(firstFilters), 0, 'f', 2)
                       .arg(firstFilters.size()));
    bench::verdict("first support centre, longest frame (worst process)", worst(firstSupport), 50, "ms",
                   QStringLiteral("50 ms; median %1 ms over %2 processes")
                       .arg(bench::median(firstSupport), 0, 'f', 2)
                       .arg(firstSupport.size()));
    return 0;
}
