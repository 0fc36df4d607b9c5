// A host's whole life: an application, a wall on screen with its pictures over TLS, and
// the end of the program. Whatever Qt prints on the way goes to standard error.
#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <memory>

namespace {
bool anyPictureShown(QQuickItem *root)
{
    QList<QQuickItem *> items{root};
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (items[i]->inherits("QVImageView") && items[i]->property("hasImage").toBool())
            return true;
        items += items[i]->childItems();
    }
    return false;
}
} // namespace

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
    if (!QTest::qWaitFor([&] { return anyPictureShown(wall.get()); }, 30000))
        return 3;
    return 0;
}
