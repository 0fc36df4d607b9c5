#include "ScreenshotTour.h"
#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtQuick/QQuickWindow>

#include <cstdio>
#include <functional>
#include <memory>

namespace {
constexpr QSize kPhone(390, 780);
constexpr QSize kTablet(1024, 768);
constexpr int kPatienceMs = 20000;

// Runs the event loop until the condition holds; false when it never did. The loop is
// driven by hand, so deferred deletions are delivered here too.
bool spinUntil(const std::function<bool()> &condition)
{
    QDeadlineTimer deadline(kPatienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

// Every item below root in the visual tree (list cells are not QObject children of the wall).
void collectItems(QQuickItem *root, QList<QQuickItem *> &items)
{
    for (QQuickItem *child : root->childItems()) {
        items.append(child);
        collectItems(child, items);
    }
}

// Pictures of every cell that is on screen have arrived.
bool picturesShown(QQuickItem *wall)
{
    QList<QQuickItem *> items;
    collectItems(wall, items);
    int shown = 0;
    for (QQuickItem *item : items) {
        auto *view = qobject_cast<QVImageView *>(item);
        if (!view || !view->isVisible())
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
    // A screen is saved only once it shows what it should; otherwise it counts as failed.
    auto shoot = [&](Scene &scene, const QString &name, const std::function<bool()> &ready) {
        if (!spinUntil(ready)) {
            std::fprintf(stderr, "quorva-demo: %s never became ready\n", qPrintable(name));
            ++failures;
            return;
        }
        const QString path = QDir(m_directory).filePath(name + QStringLiteral(".png"));
        if (scene.window->grabWindow().save(path))
            std::printf("%s\n", qPrintable(QDir(path).absolutePath()));
        else
            ++failures;
        std::fflush(stdout);
    };
    auto loaded = [](Scene &scene) {
        return [&scene] { return !scene.wall->offersList().isEmpty() && picturesShown(scene.wall); };
    };
    auto settled = [](Scene &scene) { return [&scene] { return !scene.wall->isOverlayAnimating(); }; };
    auto opened = [](Scene &scene, const char *objectName) {
        return [&scene, objectName] {
            QObject *popup = scene.wall->findChild<QObject *>(QLatin1StringView(objectName));
            return popup && popup->property("opened").toBool();
        };
    };

    for (const auto idiom : {QVDevice::Idiom::Phone, QVDevice::Idiom::Tablet}) {
        const bool tablet = idiom == QVDevice::Idiom::Tablet;
        Scene scene = openWall(QStringLiteral("7"), idiom);
        shoot(scene, tablet ? QStringLiteral("tablet-wall") : QStringLiteral("phone-wall"), loaded(scene));

        scene.wall->onFilterPressed();
        if (tablet) {
            shoot(scene, QStringLiteral("tablet-filter-popover"), opened(scene, "filterPopover"));
        } else {
            // Caught halfway down, with the blurred list showing through.
            shoot(scene, QStringLiteral("phone-filters-opening"), [&scene] {
                QQuickItem *panel = scene.wall->filterVC();
                return panel && panel->y() > -0.45 * panel->height();
            });
            shoot(scene, QStringLiteral("phone-filters"), settled(scene));
        }
    }

    {
        Scene scene = openWall(QStringLiteral("8"), QVDevice::Idiom::Phone);
        shoot(scene, QStringLiteral("phone-empty"), [&scene] {
            auto *label = scene.wall->findChild<QQuickItem *>(QStringLiteral("noOffersLabel"));
            return label && label->isVisible();
        });
    }

    {
        SandboxProcess broken({QStringLiteral("--drop-connections"), QStringLiteral("--fault-path"), QStringLiteral("offers.json")});
        if (broken.isRunning()) {
            api->setServiceBaseAddress(broken.baseAddress());
            api->addCaCertificates(broken.caCertificates());
            Scene scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
            shoot(scene, QStringLiteral("phone-no-connection"), opened(scene, "alert"));
            if (QObject *alert = scene.wall->findChild<QObject *>(QStringLiteral("alert")))
                QMetaObject::invokeMethod(alert, "close");
            shoot(scene, QStringLiteral("phone-try-again"), [&scene] {
                return scene.wall->loadFailed() && !scene.wall->findChild<QObject *>(QStringLiteral("alert"));
            });
        } else {
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
