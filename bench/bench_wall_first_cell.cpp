// Time from creating the wall to its first offer cell on screen, against the bare
// round trip of the same offers request. Run under a display (xvfb-run).
#include "BenchSupport.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

namespace {
bool firstCellShown(QVOffersViewController *wall)
{
    auto *list = wall->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    auto *content = list ? list->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!content)
        return false;
    for (QQuickItem *child : content->childItems()) {
        auto *cell = qobject_cast<QVOfferUICollectionViewCell *>(child);
        if (cell && cell->isVisible() && !cell->offerName().isEmpty())
            return true;
    }
    return false;
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 1;
    QuorvaRestAPI *api = bench::useSandbox(sandbox);
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);

    QQuickWindow window;
    window.resize(390, 780);
    window.show();
    bench::spinUntil([&] { return window.isExposed(); });

    bench::timedOffersRequest(api); // warm the connection for both measurements

    std::vector<double> bare;
    std::vector<double> wallMs;
    std::vector<double> ratios;
    for (int i = 0; i < 10; ++i) {
        const double trip = bench::timedOffersRequest(api);
        bool swapped = false;
        QElapsedTimer timer;
        timer.start();
        QVOffersViewController *wall = QVOffersViewController::newOffersWallForPublisherId(
            QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), nullptr);
        wall->setParentItem(window.contentItem());
        wall->setSize(window.size());
        bench::spinUntil([&] { return firstCellShown(wall); });
        // Drawn means the frame holding the cell has been swapped.
        auto connection = QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { swapped = true; },
                                           Qt::DirectConnection);
        window.update();
        bench::spinUntil([&] { return swapped; });
        QObject::disconnect(connection);
        const double shown = double(timer.nsecsElapsed()) / 1e6;
        bare.push_back(trip);
        wallMs.push_back(shown);
        ratios.push_back(shown / trip);
        delete wall;
        bench::spinUntil([] { return false; }, 100);
    }
    std::printf("first offer cell drawn: median %.1f ms; bare offers round trip: median %.1f ms; ratio median %.2f (p90 %.2f)\n",
                bench::percentile(wallMs, 0.5), bench::percentile(bare, 0.5), bench::percentile(ratios, 0.5),
                bench::percentile(ratios, 0.9));
    return 0;
}
