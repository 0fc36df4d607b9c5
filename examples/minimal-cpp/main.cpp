// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include <QuorvaMedia/QuorvaMedia.h>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>
#include <memory>

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    // The local sandbox ("host" or "host:port") and the authority that signed its certificate.
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(QStringLiteral("127.0.0.1:18443"));
    QuorvaRestAPI::sharedInstance()->addCaCertificates(QSslCertificate::fromPath(QStringLiteral("sandbox-ca.pem")));

    QQuickWindow window;
    window.resize(390, 844);
    // The host owns the wall; it goes before the window it is shown in.
    std::unique_ptr<QVOffersViewController> wall(QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"), nullptr));
    if (!wall) // its interface did not load: a Qt Quick module is missing (README, "Shipping")
        return 1;
    wall->setParentItem(window.contentItem()); // loading starts when the window shows
    wall->setSize(window.size());
    QObject::connect(&window, &QWindow::widthChanged, wall.get(), &QQuickItem::setWidth);
    QObject::connect(&window, &QWindow::heightChanged, wall.get(), &QQuickItem::setHeight);
    QObject::connect(wall.get(), &QVOffersViewController::closePressed, &app, &QCoreApplication::quit);
    window.show();
    return app.exec();
}
