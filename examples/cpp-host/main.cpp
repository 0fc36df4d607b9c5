#include <QuorvaMedia/QuorvaMedia.h>

#include <QtGui/QGuiApplication>
#include <QtNetwork/QSslCertificate>
#include <QtQuick/QQuickWindow>

class Host : public QVOffersViewControllerDelegate
{
public:
    // The wall is the host's to dismiss; deleteLater() lets the press finish first.
    void onCloseOffersVCPressed() override { wall->deleteLater(); }
    QVOffersViewController *wall = nullptr;
};

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(QStringLiteral("127.0.0.1:18443"));   // "host" or "host:port"
    api->addCaCertificates(QSslCertificate::fromPath(QStringLiteral("sandbox-ca.pem")));
    QVOffersViewController::preloadForPublisherId(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));

    QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
    watcher.setInterval(30000); // milliseconds
    watcher.setActive(true);

    QQuickWindow window;
    window.resize(390, 844);
    Host host;
    host.wall = QVOffersViewController::newOffersWallForPublisherId(QStringLiteral("1042"), QStringLiteral("7"),
                                                                    QStringLiteral("user-1"), &host);
    host.wall->setTheme(QVTheme::fromBrandColor(QColor(0xFF, 0xD4, 0x00), QVTheme::Dark));
    host.wall->setCreditsWatcher(&watcher);
    host.wall->setParentItem(window.contentItem()); // loading starts when it enters a shown window
    // The wall keeps the size it is given: follow the window's.
    host.wall->setSize(window.size());
    QObject::connect(&window, &QWindow::widthChanged, host.wall, &QQuickItem::setWidth);
    QObject::connect(&window, &QWindow::heightChanged, host.wall, &QQuickItem::setHeight);
    window.show();
    return app.exec();
}
