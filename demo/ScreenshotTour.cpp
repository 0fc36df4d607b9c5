#include "ScreenshotTour.h"
#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QThread>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtQuick/QQuickWindow>

#include <cstdio>
#include <functional>
#include <memory>

namespace {
constexpr QSize kPhone(390, 780);
constexpr QSize kTablet(1024, 768);

void spin(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(5);
    }
}

bool spinUntil(const std::function<bool()> &condition, int milliseconds = 15000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(5);
    }
    return true;
}

// Pictures of every cell that is on screen have arrived.
bool picturesShown(QQuickItem *wall)
{
    const auto views = wall->findChildren<QVImageView *>();
    int shown = 0;
    for (QVImageView *view : views) {
        if (!view->isVisible() || !view->parentItem() || !view->parentItem()->isVisible())
            continue;
        const QRectF inWall = view->mapRectToItem(wall, view->boundingRect());
        if (!QRectF(QPointF(), wall->size()).intersects(inWall))
            continue;
        if (!view->hasImage())
            return false;
        ++shown;
    }
    return shown > 0;
}

struct Scene
{
    std::unique_ptr<QQuickWindow> window;
    QVOffersViewController *wall = nullptr;
};

Scene openWall(const QString &wallId, QVDevice::Idiom idiom)
{
    QVDevice::setUserInterfaceIdiom(idiom);
    Scene scene;
    scene.window = std::make_unique<QQuickWindow>();
    scene.window->resize(idiom == QVDevice::Idiom::Tablet ? kTablet : kPhone);
    scene.wall = QVOffersViewController::newOffersWallForPublisherId(QStringLiteral("1042"), wallId,
                                                                     QStringLiteral("user-1"), nullptr);
    scene.wall->setParentItem(scene.window->contentItem());
    scene.wall->setSize(scene.window->size());
    scene.window->show();
    return scene;
}
} // namespace

ScreenshotTour::ScreenshotTour(SandboxProcess &sandbox, const QString &directory)
    : m_sandbox(sandbox), m_directory(directory)
{
}

int ScreenshotTour::run()
{
    QDir().mkpath(m_directory);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(m_sandbox.baseAddress());
    api->addCaCertificates(m_sandbox.caCertificates());
    int failures = 0;
    auto save = [&](Scene &scene, const QString &name) {
        const QString path = QDir(m_directory).filePath(name + QStringLiteral(".png"));
        if (scene.window->grabWindow().save(path))
            std::printf("%s\n", qPrintable(QDir(path).absolutePath()));
        else
            ++failures;
        std::fflush(stdout);
    };
    auto loaded = [](Scene &scene) {
        return spinUntil([&] { return scene.wall->offersList().size() > 0 && picturesShown(scene.wall); });
    };

    for (const auto idiom : {QVDevice::Idiom::Phone, QVDevice::Idiom::Tablet}) {
        const bool tablet = idiom == QVDevice::Idiom::Tablet;
        Scene scene = openWall(QStringLiteral("7"), idiom);
        if (!loaded(scene))
            ++failures;
        spin(300);
        save(scene, tablet ? QStringLiteral("tablet-wall") : QStringLiteral("phone-wall"));

        scene.wall->onFilterPressed();
        if (tablet) {
            spin(900);
            save(scene, QStringLiteral("tablet-filter-popover"));
        } else {
            spin(70);
            save(scene, QStringLiteral("phone-filters-opening"));
            spin(1300);
            save(scene, QStringLiteral("phone-filters"));
        }
    }

    {
        Scene scene = openWall(QStringLiteral("8"), QVDevice::Idiom::Phone);
        auto *label = scene.wall->findChild<QQuickItem *>(QStringLiteral("noOffersLabel"));
        if (!spinUntil([&] { return label && label->isVisible(); }))
            ++failures;
        spin(300);
        save(scene, QStringLiteral("phone-empty"));
    }

    {
        SandboxProcess broken({QStringLiteral("--drop-connections"), QStringLiteral("--fault-path"), QStringLiteral("offers.json")});
        if (broken.isRunning()) {
            api->setServiceBaseAddress(broken.baseAddress());
            api->addCaCertificates(broken.caCertificates());
            Scene scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
            if (!spinUntil([&] { return scene.wall->findChild<QObject *>(QStringLiteral("alert")) != nullptr; }))
                ++failures;
            spin(600);
            save(scene, QStringLiteral("phone-no-connection"));
        } else {
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
