#include "Patience.h"
#include "FakeOfferService.h"
#include "OfferWallPreloadState.h"
#include "WallHarness.h"

#include <QuorvaMedia/QVOfferWallPreload.h>

class tst_QVOfferWallPreload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { finishPendingRequests(); }

    void takenOnceWithoutSendingItsRequestsAgain();
    void wallLoadsAsBeforeWhenThePreloadCannotServe_data();
    void wallLoadsAsBeforeWhenThePreloadCannotServe();
    void wallWaitsForAPreloadStillUnderWay();
    void incompleteIdentifiersFailAtOnce();

private:
    QVOfferWallPreload *preload()
    {
        return QVOffersViewController::preloadForPublisherId(QStringLiteral("1042"), QStringLiteral("7"),
                                                             QStringLiteral("user-1"));
    }

    FakeOfferService m_service;
};

void tst_QVOfferWallPreload::initTestCase()
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_service.server().caCertificates());
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
}

void tst_QVOfferWallPreload::init()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(m_service.baseAddress());
    api->setGender({});
    m_service.setTotalOffers(95);
    m_service.setOffersHeld(false);
    m_service.setOffersDropped(false);
    m_service.server().clearRequests();
}

void tst_QVOfferWallPreload::takenOnceWithoutSendingItsRequestsAgain()
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
    QVERIFY(second.show());
    QTRY_COMPARE(second.wall->offersList().size(), 30);
    QCOMPARE(m_service.offersQueries().last().value("offset"), QStringLiteral("0"));
    QCOMPARE(m_service.requestsTo("/details.json"), 2);
}

void tst_QVOfferWallPreload::wallLoadsAsBeforeWhenThePreloadCannotServe_data()
{
    QTest::addColumn<QString>("reason");
    QTest::newRow("targeting changed since") << QStringLiteral("targeting");
    QTest::newRow("older than its time") << QStringLiteral("stale");
    QTest::newRow("its offers failed") << QStringLiteral("failed");
}

void tst_QVOfferWallPreload::wallLoadsAsBeforeWhenThePreloadCannotServe()
{
    QFETCH(QString, reason);
    const auto restoreAge = qScopeGuard([] { quorva::detail::setPreloadMaximumAge(std::chrono::minutes(5)); });
    m_service.setOffersDropped(reason == QLatin1String("failed"));
    QVOfferWallPreload *ahead = preload();
    QTRY_VERIFY(ahead->isReady() || ahead->isFailed());
    QCOMPARE(ahead->isFailed(), reason == QLatin1String("failed"));
    m_service.setOffersDropped(false);
    if (reason == QLatin1String("targeting"))
        QuorvaRestAPI::sharedInstance()->setGender(QStringLiteral("f"));
    if (reason == QLatin1String("stale"))
        quorva::detail::setPreloadMaximumAge(std::chrono::milliseconds(0));

    WallHarness harness;
    QVERIFY(harness.show());
    QTRY_COMPARE(harness.wall->offersList().size(), 30);
    QTRY_COMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
    QCOMPARE(m_service.requestsTo("/offers.json"), 2);
    QCOMPARE(m_service.requestsTo("/details.json"), 2);
    QCOMPARE(m_service.offersQueries().last().value("gender"),
             reason == QLatin1String("targeting") ? QStringLiteral("f") : QString());
    QVERIFY(harness.alert() == nullptr);

    // Dropped: a later wall does not find it either.
    WallHarness second;
    QVERIFY(second.show());
    QTRY_COMPARE(second.wall->offersList().size(), 30);
    QCOMPARE(m_service.requestsTo("/offers.json"), 3);
}

void tst_QVOfferWallPreload::wallWaitsForAPreloadStillUnderWay()
{
    m_service.setOffersHeld(true);
    QVOfferWallPreload *ahead = preload();
    QTRY_COMPARE(m_service.requestsTo("/offers.json"), 1);
    WallHarness harness;
    QVERIFY(harness.show());
    QVERIFY(harness.wall->loadingOffers());
    QVERIFY(!ahead->isReady());
    m_service.setOffersHeld(false);
    QTRY_COMPARE(harness.wall->offersList().size(), 30);
    QVERIFY(!harness.wall->loadingOffers());
    QCOMPARE(m_service.requestsTo("/offers.json"), 1);
    QCOMPARE(m_service.requestsTo("/details.json"), 1);
}

void tst_QVOfferWallPreload::incompleteIdentifiersFailAtOnce()
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

QTEST_MAIN(tst_QVOfferWallPreload)
#include "tst_QVOfferWallPreload.moc"
