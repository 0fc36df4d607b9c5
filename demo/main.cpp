// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// quorva-demo: a host application that embeds the offer wall against the local sandbox.
// With a display it opens a phone- or tablet-sized window; with --screenshots it renders
// the main screens to PNG files and prints their paths.
#include "ConsoleReport.h"
#include "KeyboardPanel.h"
#include "SandboxCredits.h"
#include "SandboxProcess.h"
#include "ScreenshotTour.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>
#include <QtGui/QShortcut>
#include <QtQuick/QQuickWindow>

#include <cstdio>

namespace {
class DemoHost : public QVOffersViewControllerDelegate
{
public:
    void onCloseOffersVCPressed() override { QGuiApplication::quit(); }
};
} // namespace

int main(int argc, char **argv)
{
    // Qt's on-screen keyboard, as a phone shows one, unless the host environment chose
    // another input method.
    if (qEnvironmentVariableIsEmpty("QT_IM_MODULE"))
        qputenv("QT_IM_MODULE", QByteArrayLiteral("qtvirtualkeyboard"));
    QGuiApplication app(argc, argv);
    // The keyboard's word suggestions need a dictionary the demo does not install.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.virtualkeyboard.hunspell.warning=false"));
    QGuiApplication::setApplicationName(QStringLiteral("Quorva Demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Offer wall demo host against the local sandbox."));
    parser.addHelpOption();
    const QCommandLineOption tablet(QStringLiteral("tablet"), QStringLiteral("Tablet idiom and window size."));
    const QCommandLineOption wall(QStringLiteral("wall"), QStringLiteral("Offer wall id (7 full, 8 empty, 9 large)."),
                                  QStringLiteral("id"), QStringLiteral("7"));
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                         QStringLiteral("Render the main screens to PNG files in this folder and exit."),
                                         QStringLiteral("dir"));
    const QCommandLineOption console(QStringLiteral("console"),
                                     QStringLiteral("Print what the client receives from the sandbox and exit."));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   QStringLiteral("The wall's look: light, dark or brand:#RRGGBB (the system's when unset)."),
                                   QStringLiteral("look"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("The wall's language (de, es, fr, pt_BR, ar; the system's when unset)."),
                                      QStringLiteral("code"));
    parser.addOptions({tablet, wall, screenshots, console, theme, language});
    parser.process(app);

    SandboxProcess sandbox;
    if (!sandbox.isRunning()) {
        std::fprintf(stderr, "quorva-demo: the sandbox did not start\n");
        return 1;
    }

    if (parser.isSet(console))
        return printConsoleReport(sandbox);
    if (parser.isSet(screenshots)) {
        ScreenshotTour tour(sandbox, parser.value(screenshots));
        return tour.run();
    }

    // An interactive host: about ten lines of integration.
    QVDevice::setUserInterfaceIdiom(parser.isSet(tablet) ? QVDevice::Idiom::Tablet : QVDevice::Idiom::Phone);
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(sandbox.baseAddress());
    QuorvaRestAPI::sharedInstance()->addCaCertificates(sandbox.caCertificates());
    // Targeting first, then the preload: a preload made with other targeting is not taken.
    QuorvaRestAPI::sharedInstance()->setGender(QStringLiteral("f"));
    QVOffersViewController::preloadForPublisherId(QStringLiteral("1042"), parser.value(wall), QStringLiteral("user-1"));
    DemoHost host;
    QQuickWindow window;
    window.resize(parser.isSet(tablet) ? QSize(1024, 768) : QSize(390, 780));
    window.setTitle(QStringLiteral("QuorvaMedia demo \u2014 F2 credits the user"));
    QVOffersViewController *offerWall = QVOffersViewController::newOffersWallForPublisherId(
        QStringLiteral("1042"), parser.value(wall), QStringLiteral("user-1"), &host);
    offerWall->setGender(1);
    if (parser.isSet(theme)) {
        const QString look = parser.value(theme);
        if (look == QLatin1String("light")) {
            offerWall->setTheme(QVTheme::light());
        } else if (look == QLatin1String("dark")) {
            offerWall->setTheme(QVTheme::dark());
        } else if (look.startsWith(QLatin1String("brand:")) && QColor::isValidColorName(look.mid(6))) {
            offerWall->setTheme(QVTheme::fromBrandColor(QColor::fromString(look.mid(6))));
        } else {
            std::fprintf(stderr, "quorva-demo: --theme takes light, dark or brand:#RRGGBB\n");
            return 2;
        }
    }
    if (parser.isSet(language))
        offerWall->setLanguage(parser.value(language));
    QVCreditsWatcher credits(QStringLiteral("1042"), parser.value(wall), QStringLiteral("user-1"));
    credits.setInterval(10000);
    credits.setActive(true);
    offerWall->setCreditsWatcher(&credits);
    // Stands in for the user completing an offer elsewhere.
    QShortcut creditKey(QKeySequence(Qt::Key_F2), &window);
    QObject::connect(&creditKey, &QShortcut::activated, &credits, [&] {
        creditUser(sandbox, parser.value(wall), QStringLiteral("user-1"), QStringLiteral("Dragon Realms"), 1500,
                   [&credits](bool) { credits.checkNow(); });
    });
    offerWall->setParentItem(window.contentItem());
    offerWall->setSize(window.size());
    QObject::connect(&window, &QQuickWindow::widthChanged, offerWall, [&] { offerWall->setSize(window.size()); });
    QObject::connect(&window, &QQuickWindow::heightChanged, offerWall, [&] { offerWall->setSize(window.size()); });
    if (qgetenv("QT_IM_MODULE") == "qtvirtualkeyboard")
        addKeyboardPanel(&window);
    window.show();
    // Keys go to the wall at once, with or without a window manager to hand them over.
    window.requestActivate();
    return app.exec();
}
