// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"
#include "OfferWallPreloadState.h"
#include "WallHarness.h"

#include <QuorvaMedia/QVOfferWallPreload.h>

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

using Pairs = QMap<QString, QString>;

class tst_QVOfferWallPreload : public ServiceSuite
{
    Q_OBJECT

private slots:
    void takenOnceWithoutSendingItsRequestsAgain()
    {
        QVOfferWallPreload *ahead = preload();
        QVERIFY(ahead);
        QSignalSpy state(ahead, &QVOfferWallPreload::stateChanged);
        QCOMPARE(preload(), ahead); // the same one while it loads
        QTRY_VERIFY(ahead->isReady());
        QVERIFY(ahead->hasOffers());
        QVERIFY(!ahead->isFailed());
        QCOMPARE(state.count(), 1);
        QCOMPARE(preload(), ahead); // and while it is ready
        QCOMPARE(m_service.requestsTo("/offers.json"), 1);
        QCOMPARE(m_service.requestsTo("/details.json"), 1);

        // What the first frame after the wall enters its window draws.
        WallHarness harness;
        QSignalSpy shown(harness.wall, &QVOffersViewController::offersShown);
        int cellsInFirstFrame = -1;
        QString titleInFirstFrame;
        // The GUI thread waits while a frame is synchronised, so the items can be read here.
        QObject::connect(harness.window.get(), &QQuickWindow::beforeSynchronizing, harness.window.get(), [&] {
            if (cellsInFirstFrame >= 0)
                return;
            cellsInFirstFrame = int(harness.cells().size());
            titleInFirstFrame = harness.find(QStringLiteral("headerTitle"))->property("text").toString();
        }, Qt::DirectConnection);
        QVERIFY(harness.show());
        QTRY_VERIFY(cellsInFirstFrame >= 0);
        QVERIFY2(cellsInFirstFrame >= 5, qPrintable(QString::number(cellsInFirstFrame)));
        QCOMPARE(titleInFirstFrame, QStringLiteral("Earn Gems"));
        QTRY_COMPARE(shown.count(), 1);
        QCOMPARE(m_service.requestsTo("/offers.json"), 1);
        QCOMPARE(m_service.requestsTo("/details.json"), 1);

        // Paging goes on with the wall's own requests.
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
        QCOMPARE(m_service.offersQueries().last().value("offset"), QStringLiteral("30"));
        QCOMPARE(shown.count(), 1);

        // Taken once: the next wall asks for itself.
        WallHarness second;
        QVERIFY(second.showFirstPage());
        QCOMPARE(m_service.offersQueries().last().value("offset"), QStringLiteral("0"));
        QCOMPARE(m_service.requestsTo("/details.json"), 2);
    }

    void wallLoadsAsBeforeWhenThePreloadCannotServe_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("sentPair"); // what the wall's own first request carries
        QTest::newRow("targeting changed since") << QStringLiteral("targeting") << "gender=f";
        QTest::newRow("the user is a child since") << QStringLiteral("child") << "coppa=1";
        QTest::newRow("consent refused since") << QStringLiteral("consent") << "gdpr=1";
        QTest::newRow("older than its time") << QStringLiteral("stale") << QString();
        QTest::newRow("its offers failed") << QStringLiteral("failed") << QString();
    }

    void wallLoadsAsBeforeWhenThePreloadCannotServe()
    {
        QFETCH(QString, reason);
        QFETCH(QString, sentPair);
        const auto restoreAge = qScopeGuard([] { quorva::detail::setPreloadMaximumAge(std::chrono::minutes(5)); });
        m_service.setDropped(FakeOfferService::Offers, reason == QLatin1String("failed"));
        QVOfferWallPreload *ahead = preload();
        QTRY_VERIFY(ahead->isReady() || ahead->isFailed());
        QCOMPARE(ahead->isFailed(), reason == QLatin1String("failed"));
        m_service.setDropped(FakeOfferService::Offers, false);
        if (reason == QLatin1String("targeting"))
            QuorvaRestAPI::sharedInstance()->setGender(QStringLiteral("f"));
        QVPrivacy privacy;
        privacy.childDirected = reason == QLatin1String("child") ? QVPrivacy::Answer::Yes : QVPrivacy::Answer::Unknown;
        privacy.gdprApplies = reason == QLatin1String("consent") ? QVPrivacy::Answer::Yes : QVPrivacy::Answer::Unknown;
        QuorvaRestAPI::sharedInstance()->setPrivacy(privacy);
        if (reason == QLatin1String("stale"))
            quorva::detail::setPreloadMaximumAge(std::chrono::milliseconds(0));

        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QTRY_COMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
        QCOMPARE(m_service.callsTo(FakeOfferService::Offers), 2);
        QCOMPARE(m_service.callsTo(FakeOfferService::Profile), 2);
        const QMap<QString, QString> sent = m_service.offersQueries().last();
        if (!sentPair.isEmpty())
            QCOMPARE(sent.value(sentPair.section(u'=', 0, 0)), sentPair.section(u'=', 1));
        QVERIFY(!sent.contains(QStringLiteral("coppa")) || reason == QLatin1String("child"));
        QVERIFY(harness.alert() == nullptr);

        // Dropped: a later wall does not find it either.
        WallHarness second;
        QVERIFY(second.showFirstPage());
        QCOMPARE(m_service.callsTo(FakeOfferService::Offers), 3);
    }

    void wallWaitsForAPreloadStillUnderWay()
    {
        m_service.setHeld(FakeOfferService::Offers, true);
        QVOfferWallPreload *ahead = preload();
        QTRY_COMPARE(m_service.requestsTo("/offers.json"), 1);
        WallHarness harness;
        QVERIFY(harness.show());
        QVERIFY(harness.wall->loadingOffers());
        QVERIFY(!ahead->isReady());
        m_service.setHeld(FakeOfferService::Offers, false);
        QTRY_COMPARE(harness.wall->offersList().size(), 30);
        QVERIFY(!harness.wall->loadingOffers());
        QCOMPARE(m_service.requestsTo("/offers.json"), 1);
        QCOMPARE(m_service.requestsTo("/details.json"), 1);
    }

    void incompleteIdentifiersFailAtOnce()
    {
        const char *warning = "offer wall preload needs a publisher, a wall and a user identifier; it has failed";
        QTest::ignoreMessage(QtWarningMsg, warning);
        QVOfferWallPreload *noUser = QVOffersViewController::preloadForPublisherId(QStringLiteral("1042"),
                                                                                   QStringLiteral("7"), QString());
        QVERIFY(noUser->isFailed());
        QVERIFY(!noUser->isReady());
        QTest::ignoreMessage(QtWarningMsg, warning);
        QVOfferWallPreload *noPublisher = QVOffersViewController::preloadForPublisherId(QString(), QStringLiteral("7"),
                                                                                        QStringLiteral("user-1"));
        QVERIFY(noPublisher->isFailed());
        QCoreApplication::processEvents();
        QCOMPARE(m_service.server().requestCount(), 0);
    }

    void qmlHostDoesWhatACppHostDoes_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<bool>("taken");
        QTest::addColumn<Pairs>("sent"); // pairs of the wall's own request when it asks itself
        const QString identifiers = QStringLiteral("pubId: \"1042\"; corvelId: \"7\"; subId1: \"user-1\"\n");
        const QString others = QStringLiteral(
            "creditsWatcher: watcher; theme: QVTheme.fromBrandColor(\"#FFD400\", QVTheme.Dark)\n");
        QTest::newRow("identifiers first") << identifiers + others << true << Pairs();
        QTest::newRow("identifiers last") << others + identifiers << true << Pairs();
        QTest::newRow("retargeted by the document")
            << identifiers + others + QStringLiteral("gender: 1; subid3: \"from-qml\"\n") << false
            << Pairs{{"gender", "f"}, {"subid3", "from-qml"}};
        // What the platform's calls give a QML host, and the user's choices, set as values.
        const QString identifier = QStringLiteral("6F9619FF-8B86-D011-B42D-00CF4FC964FF");
        QTest::newRow("identifier set by the document")
            << identifiers + others + QStringLiteral("Component.onCompleted: { QVService.advertisingIdentifier = \"%1\"; "
                                            "QVService.trackingEnabled = true }\n").arg(identifier.toLower())
            << false << Pairs{{"device", identifier}, {"limit_tracking", "1"}};
        QTest::newRow("a child, by the document")
            << identifiers + others + QStringLiteral("gender: 0\nComponent.onCompleted: { QVService.advertisingIdentifier = \"%1\"; "
                                            "QVService.childDirected = QVService.Yes; QVService.gdprApplies = QVService.No; "
                                            "QVService.usPrivacyString = \"1YNN\"; QVService.gppString = \"DB\"; "
                                            "QVService.gppSectionIds = \"2\"; QVService.gdprConsent = QVService.Yes; "
                                            "QVService.gdprConsentString = \"CO\"; QVService.belowConsentAge = QVService.Yes; "
                                            "QVService.advertisingIdOptOut = true }\n").arg(identifier)
            << false << Pairs{{"coppa", "1"}, {"gdpr", "0"}, {"gdpr_consent", "CO"}, {"us_privacy", "1YNN"},
                              {"gpp", "DB"}, {"gpp_sid", "2"}, {"device", "00000000-0000-0000-0000-000000000000"},
                              {"gender", QString()}};
    }

    // Everything in QML: the client's address, the preload, a watcher, a theme, a language;
    // the wall takes the preload whatever order its properties come in, unless the document
    // retargets it, and picks phone or tablet by its own size.
    void qmlHostDoesWhatACppHostDoes()
    {
        QFETCH(QString, properties);
        QFETCH(bool, taken);
        QFETCH(Pairs, sent);
        // What the library's interface files cannot find in a host's document is an error.
        QTest::failOnWarning(QRegularExpression(QStringLiteral("Error")));
        QVDevice::resetUserInterfaceIdiom();
        const auto phone = qScopeGuard([] { QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone); });
        m_service.setHistory(200, R"({"transactions":[]})");
        QQmlEngine engine;
        const QString address = m_service.baseAddress();
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("service address https://%1/ takes no scheme: using %1/")
                                                          .arg(address)));
        QQmlComponent starter(&engine);
        starter.setData(kPreloadingDocument, QUrl());
        std::unique_ptr<QObject> started(starter.createWithInitialProperties({{QStringLiteral("address"), address}}));
        QVERIFY2(started, qPrintable(starter.errorString()));
        QCOMPARE(QuorvaRestAPI::sharedInstance()->serviceBaseAddress(), address);
        auto *ahead = started->property("preload").value<QVOfferWallPreload *>();
        QVERIFY(ahead);
        QTRY_VERIFY(ahead->isReady());

        QQmlComponent component(&engine);
        component.setData(QString::fromUtf8(kWallDocument).arg(properties).toUtf8(), QUrl());
        std::unique_ptr<QObject> root(component.create());
        QVERIFY2(root, qPrintable(component.errorString()));
        QQuickWindow window;
        window.resize(390, 844);
        qobject_cast<QQuickItem *>(root.get())->setParentItem(window.contentItem());
        auto *wall = root->findChild<QVOffersViewController *>(QStringLiteral("wall"));
        int cellsInFirstFrame = -1;
        QObject::connect(&window, &QQuickWindow::beforeSynchronizing, &window, [&] {
            if (cellsInFirstFrame >= 0)
                return;
            const QList<QQuickItem *> items = WallHarness::itemsBelow(wall);
            cellsInFirstFrame = int(std::count_if(items.cbegin(), items.cend(), [](QQuickItem *item) {
                return item->inherits("QVOfferUICollectionViewCell") && item->isVisible();
            }));
        }, Qt::DirectConnection);
        window.show();
        QTRY_VERIFY(cellsInFirstFrame >= 0);
        QTRY_COMPARE(wall->offersList().size(), 30);
        QVERIFY(cellsInFirstFrame > 0 || !taken);
        QCOMPARE(m_service.requestsTo("/offers.json"), taken ? 1 : 2);
        QCOMPARE(m_service.requestsTo("/details.json"), taken ? 1 : 2);
        for (auto it = sent.cbegin(); it != sent.cend(); ++it)
            QCOMPARE(m_service.offersQueries().last().value(it.key()), it.value());
        QCOMPARE(wall->theme(), QVTheme::fromBrandColor(QColor(0xFF, 0xD4, 0x00), QVTheme::Dark));

        // The watcher declared beside the wall reports to it.
        auto *watcher = root->findChild<QVCreditsWatcher *>(QStringLiteral("watcher"));
        QCOMPARE(wall->creditsWatcher(), watcher);
        QTRY_VERIFY(watcher->hasBaseline());
        m_service.setHistory(200, R"({"transactions":[{"offer_name":"Sky Quest","currency_adjustment":1500}]})");
        watcher->checkNow();
        QTRY_VERIFY(wall->creditNoticeShown());

        // The language, set on an open wall, reaches the texts already shown.
        QQuickItem *title = wall->findChild<QQuickItem *>(QStringLiteral("headerTitle"));
        QTRY_COMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
        wall->setProperty("language", QStringLiteral("de"));
        QCOMPARE(title->property("text").toString(), QStringLiteral("Gems verdienen"));
        QVERIFY(!wall->isRightToLeft());
        wall->setProperty("language", QStringLiteral("ar"));
        QVERIFY(wall->isRightToLeft());
        wall->setProperty("language", QString());
        QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
        // So does a larger text, set from the document.
        const qreal rowHeight = wall->cellSize().height();
        const auto normalText = qScopeGuard([] { QVDevice::setTextScale(1.0); });
        QVERIFY(QMetaObject::invokeMethod(root.get(), "enlargeText"));
        QCOMPARE(QVDevice::textScale(), 2.0);
        QTRY_VERIFY(wall->cellSize().height() > rowHeight);

        // A phone-sized window gets the phone's support centre whatever the screen, and its
        // button closes it again.
        QQuickItem *support = wall->findChild<QQuickItem *>(QStringLiteral("supportBtn"));
        QMetaObject::invokeMethod(support, "clicked");
        QTRY_VERIFY(wall->supportVC() && !wall->isOverlayAnimating());
        QVERIFY(!wall->findChild<QObject *>(QStringLiteral("supportPopover")));
        QVERIFY(wall->isSupportViewOpen());
        QMetaObject::invokeMethod(support, "clicked");
        QTRY_VERIFY(!wall->isSupportViewOpen());
        QCOMPARE(root->property("closes").toInt(), 0);
        wall->onClosePressed();
        QCOMPARE(root->property("closes").toInt(), 1);
    }

private:
    QVOfferWallPreload *preload()
    {
        return QVOffersViewController::preloadForPublisherId(QStringLiteral("1042"), QStringLiteral("7"),
                                                             QStringLiteral("user-1"));
    }

    // QML hosts, written after the class: moc does not read multi-line raw strings.
    static const char kPreloadingDocument[];
    static const char kWallDocument[];
};

// A QML host that sets the address and preloads when its document completes.
const char tst_QVOfferWallPreload::kPreloadingDocument[] = R"(
    import QtQml
    import QuorvaMedia
    QtObject {
        required property string address
        property QVOfferWallPreload preload
        Component.onCompleted: {
            QVService.serviceBaseAddress = "https://" + address + "/"
            preload = QVService.preload("1042", "7", "user-1")
        }
    })";

// A QML host with a watcher and a wall; %1 takes the wall's further properties.
const char tst_QVOfferWallPreload::kWallDocument[] = R"(
    import QtQuick
    import QuorvaMedia
    Item {
        width: 390; height: 844
        property int closes: 0
        function enlargeText() { QVDevice.textScale = 2 }
        QVCreditsWatcher { id: watcher; objectName: "watcher"; active: true
                           pubId: "1042"; corvelId: "7"; subId1: "user-1" }
        QVOffersViewController {
            objectName: "wall"
            anchors.fill: parent
            onClosePressed: parent.closes++
            %1
        }
    })";

QTEST_MAIN(tst_QVOfferWallPreload)
#include "tst_QVOfferWallPreload.moc"
