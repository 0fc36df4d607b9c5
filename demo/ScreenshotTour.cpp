// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ScreenshotTour.h"
#include "SandboxCredits.h"
#include "SandboxProcess.h"
#include "SupportTour.h"
#include "Tour.h"

using namespace tour;

ScreenshotTour::ScreenshotTour(SandboxProcess &sandbox, const QString &directory)
    : m_sandbox(sandbox), m_directory(directory)
{
}

int ScreenshotTour::run()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(m_sandbox.baseAddress());
    api->addCaCertificates(m_sandbox.caCertificates());
    Camera camera(m_directory);
    // Made ahead, as a host would at start: the first phone wall takes it.
    QVOfferWallPreload *preload = QVOffersViewController::preloadForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
    if (!spinUntil([preload] { return preload->isReady() || preload->isFailed(); }) || preload->isFailed())
        camera.fail(QStringLiteral("the preload did not become ready"));

    // Every screen in the wall's own look, then dark, then derived from a yellow brand.
    // And in German and in Arabic, which reads right to left; and with the largest text.
    const Look looks[] = {{std::nullopt, QString()},
                          {QVTheme::dark(), QStringLiteral("-dark")},
                          {QVTheme::fromBrandColor(QColor(0xFF, 0xD4, 0x00)), QStringLiteral("-brand")},
                          {std::nullopt, QStringLiteral("-de"), QLocale(QLocale::German, QLocale::Germany)},
                          {std::nullopt, QStringLiteral("-ar"), QLocale(QLocale::Arabic, QLocale::Egypt)},
                          {std::nullopt, QStringLiteral("-large"), QLocale(QLocale::English, QLocale::UnitedStates),
                           QVDevice::kMaximumTextScale}};
    for (const Look &look : looks) {
        setLook(look);
        renderScreens(camera);
    }
    setLook({});
    shootFormWithKeyboard(camera);
    shootWallForAChild(camera);
    return camera.failures() == 0 ? 0 : 1;
}

void ScreenshotTour::renderScreens(Camera &camera)
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    auto settled = [](const Scene &scene) { return [&scene] { return !scene.wall->isOverlayAnimating(); }; };

    for (const auto idiom : {QVDevice::Idiom::Phone, QVDevice::Idiom::Tablet}) {
        const bool tablet = idiom == QVDevice::Idiom::Tablet;
        auto scene = openWall(QStringLiteral("7"), idiom);
        camera.shoot(*scene, tablet ? QStringLiteral("tablet-wall") : QStringLiteral("phone-wall"), [&] {
            return !scene->wall->offersList().isEmpty() && picturesShown(scene->wall);
        });
        if (!tablet) {
            // Reached by the keyboard: an offer has the focus and shows its ring. Keys go to the
            // active window, which a later scene's window is not by itself on a bare X server.
            // The list takes the focus once its first offers are on screen.
            scene->window->requestActivate();
            if (!spinUntil([&] { return scene->window->isActive() && scene->wall->isAncestorOf(scene->window->activeFocusItem()); }))
                camera.fail(QStringLiteral("the wall never took the keyboard (window active: %1, focus on %2)")
                                .arg(scene->window->isActive())
                                .arg(scene->window->activeFocusItem() ? QString::fromLatin1(scene->window->activeFocusItem()->metaObject()->className()) : QStringLiteral("nothing")));
            press(scene->window.get(), Qt::Key_Down);
            camera.shoot(*scene, QStringLiteral("phone-wall-keyboard"), [&] {
                return scene->wall->focusedOffer() >= 0
                    && qobject_cast<QVOfferUICollectionViewCell *>(scene->window->activeFocusItem());
            });
        }
        scene->wall->onFilterPressed();
        if (tablet) {
            camera.shoot(*scene, QStringLiteral("tablet-filter-popover"),
                         [&] { return popupOpened(scene->wall, "filterPopover"); });
        } else {
            // Caught halfway down, with the blurred list showing through.
            camera.shoot(*scene, QStringLiteral("phone-filters-opening"), [&] {
                QQuickItem *panel = scene->wall->filterVC();
                return panel && panel->y() > -0.45 * panel->height();
            });
            camera.shoot(*scene, QStringLiteral("phone-filters"), settled(*scene));
        }
    }

    {
        auto scene = openWall(QStringLiteral("8"), QVDevice::Idiom::Phone);
        camera.shoot(*scene, QStringLiteral("phone-empty"), [&] {
            QQuickItem *label = scene->find("noOffersLabel");
            return label && label->isVisible();
        });
    }

    runSupportTour(camera, m_sandbox);

    {
        // The user completes an offer while the wall is open.
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        watcher.checkNow();
        auto scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
        scene->wall->setCreditsWatcher(&watcher);
        if (!spinUntil([&] { return watcher.hasBaseline() && !watcher.isChecking(); }))
            camera.fail(QStringLiteral("the credits watcher never heard from the sandbox"));
        bool stored = false;
        creditUser(m_sandbox, QStringLiteral("7"), QStringLiteral("user-1"), QStringLiteral("Dragon Realms"), 1500,
                   [&](bool ok) {
                       stored = ok;
                       watcher.checkNow();
                   });
        camera.shoot(*scene, QStringLiteral("phone-credit-notice"), [&] {
            return stored && scene->wall->creditNoticeShown() && picturesShown(scene->wall)
                && scene->find("creditNotice")->opacity() == 1.0;
        });
    }

    {
        SandboxProcess broken({QStringLiteral("--drop-connections"), QStringLiteral("--fault-path"), QStringLiteral("offers.json")});
        if (!broken.isRunning()) {
            camera.fail(QStringLiteral("the failing sandbox did not start"));
            return;
        }
        api->setServiceBaseAddress(broken.baseAddress());
        api->addCaCertificates(broken.caCertificates());
        auto scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
        camera.shoot(*scene, QStringLiteral("phone-no-connection"), [&] { return popupOpened(scene->wall, "alert"); });
        if (QObject *alert = scene->wall->findChild<QObject *>(QStringLiteral("alert")))
            QMetaObject::invokeMethod(alert, "close");
        camera.shoot(*scene, QStringLiteral("phone-try-again"), [&] {
            return scene->wall->loadFailed() && !scene->wall->findChild<QObject *>(QStringLiteral("alert"));
        });
        api->setServiceBaseAddress(m_sandbox.baseAddress());
    }
}

void ScreenshotTour::shootWallForAChild(Camera &camera)
{
    // An app for children says so: the sandbox leaves out what is not for them.
    QVPrivacy child;
    child.childDirected = QVPrivacy::Answer::Yes;
    QuorvaRestAPI::sharedInstance()->setPrivacy(child);
    {
        auto scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
        camera.shoot(*scene, QStringLiteral("phone-wall-child"), [&] {
            return !scene->wall->offersList().isEmpty() && picturesShown(scene->wall);
        });
    }
    QuorvaRestAPI::sharedInstance()->setPrivacy({});
}
