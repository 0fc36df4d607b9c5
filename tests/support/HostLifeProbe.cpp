// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// A host's whole life: an application, a wall on screen with its pictures over TLS, and
// the end of the program. Whatever Qt prints on the way goes to standard error.
#include "SandboxProcess.h"
#include "WallHarness.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <memory>

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 2;
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(sandbox.baseAddress());
    QuorvaRestAPI::sharedInstance()->addCaCertificates(sandbox.caCertificates());
    QQuickWindow window;
    window.resize(390, 780);
    std::unique_ptr<QVOffersViewController> wall(QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), nullptr));
    wall->setParentItem(window.contentItem());
    wall->setSize(window.size());
    window.show();
    const auto pictureShown = [](QQuickItem *item) { return item->inherits("QVImageView") && item->property("hasImage").toBool(); };
    if (!QTest::qWaitFor([&] { return std::ranges::any_of(WallHarness::itemsBelow(wall.get()), pictureShown); }, 30000))
        return 3;
    return 0;
}
