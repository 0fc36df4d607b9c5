// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"

#include <QuorvaMedia/QVCreditsWatcher.h>

#include <QtTest/QtTest>

namespace {
const auto history = &FakeOfferService::historyOf;

QStringList names(const QList<QVTransaction> &transactions)
{
    QStringList result;
    for (const QVTransaction &t : transactions)
        result.append(t.offerName() + QLatin1Char(':') + t.currencyAdjustment());
    return result;
}
} // namespace

class tst_QVCreditsWatcher : public ServiceSuite
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<QList<QVTransaction>>();
    }

    void init()
    {
        startTest();
        m_service.setHistory(200, history(QStringLiteral("Old:10")));
    }

    void reportsWhatIsNewSinceTheBaselineOnce()
    {
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-9"));
        QSignalSpy credits(&watcher, &QVCreditsWatcher::creditsReceived);
        m_service.setHistory(200, history(QStringLiteral("A:5, B:7")));
        QVERIFY(poll(watcher));
        QVERIFY(watcher.hasBaseline());
        QCOMPARE(credits.count(), 0); // already credited before the watcher looked
        QCOMPARE(QString::fromStdString(m_service.server().lastRequest().path),
                 QStringLiteral("/corvel/api/publisher/1042/profile/7/user/user-9/transactions.json"));

        // New rows come in the reply's order; two identical rows are two credits.
        m_service.setHistory(200, history(QStringLiteral("C:500, C:500, A:5, B:7")));
        QVERIFY(poll(watcher));
        QCOMPARE(credits.count(), 1);
        QCOMPARE(names(credits.takeFirst().at(0).value<QList<QVTransaction>>()),
                 QStringList({QStringLiteral("C:500"), QStringLiteral("C:500")}));

        // Nothing twice, and a row missing from one reply that comes back is not new.
        QVERIFY(poll(watcher));
        m_service.setHistory(200, history(QStringLiteral("C:500, B:7")));
        QVERIFY(poll(watcher));
        m_service.setHistory(200, history(QStringLiteral("D:1, C:500, C:500, A:5, B:7")));
        QVERIFY(poll(watcher));
        QCOMPARE(credits.count(), 1);
        QCOMPARE(names(credits.takeFirst().at(0).value<QList<QVTransaction>>()), QStringList({QStringLiteral("D:1")}));
    }

    // A poll counts only when the service answered with a history: 200 with a list, or 204.
    // Anything else leaves the baseline as it was and is tried again.
    void onlyAnAnswerWithAListCounts_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("dropped");
        QTest::addColumn<bool>("counts");

        const QByteArray withNew = history(QStringLiteral("New:50, Old:10"));
        QTest::newRow("no content") << 204 << QByteArray() << false << true;
        QTest::newRow("server error with a list") << 500 << withNew << false << false;
        QTest::newRow("not found") << 404 << withNew << false << false;
        QTest::newRow("list of another type") << 200 << QByteArray(R"({"transactions":{"offer_name":"New"}})") << false << false;
        QTest::newRow("not JSON") << 200 << QByteArray("<html>busy</html>") << false << false;
        QTest::newRow("dropped connection") << 200 << withNew << true << false;
    }

    void onlyAnAnswerWithAListCounts()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, dropped);
        QFETCH(bool, counts);

        QVCreditsWatcher fresh(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        m_service.setHistory(status, body);
        m_service.setDropped(FakeOfferService::History, dropped);
        QVERIFY(poll(fresh));
        QCOMPARE(fresh.hasBaseline(), counts);

        QVCreditsWatcher watching(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        QSignalSpy credits(&watching, &QVCreditsWatcher::creditsReceived);
        m_service.setHistory(200, history(QStringLiteral("Old:10")));
        m_service.setDropped(FakeOfferService::History, false);
        QVERIFY(poll(watching));
        m_service.setHistory(status, body);
        m_service.setDropped(FakeOfferService::History, dropped);
        QVERIFY(poll(watching));
        QCOMPARE(credits.count(), 0);

        // The next good answer reports the new row once, whatever the failed poll held.
        m_service.setHistory(200, history(QStringLiteral("New:50, Old:10")));
        m_service.setDropped(FakeOfferService::History, false);
        QVERIFY(poll(watching));
        QCOMPARE(credits.count(), 1);
        QCOMPARE(names(credits.takeFirst().at(0).value<QList<QVTransaction>>()), QStringList({QStringLiteral("New:50")}));
    }

    void onePollAtATime()
    {
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        m_service.setHeld(FakeOfferService::History, true);
        watcher.setActive(true); // polls at once
        QTRY_COMPARE(m_service.requestsTo("/transactions.json"), 1);
        for (int i = 0; i < 5; ++i)
            watcher.checkNow();
        QVERIFY(watcher.isChecking());
        QCOMPARE(m_service.requestsTo("/transactions.json"), 1);

        // The presses made while it was under way add up to one more poll, then it waits.
        QSignalSpy checking(&watcher, &QVCreditsWatcher::checkingChanged);
        m_service.setHeld(FakeOfferService::History, false);
        QTRY_VERIFY(!watcher.isChecking());
        QCOMPARE(m_service.requestsTo("/transactions.json"), 2);
        QCOMPARE(checking.count(), 1);
        QVERIFY(watcher.hasBaseline());
    }

    void pollsAtItsIntervalWhileActive()
    {
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        QSignalSpy intervalChanged(&watcher, &QVCreditsWatcher::intervalChanged);
        watcher.setInterval(10);
        QCOMPARE(watcher.interval(), QVCreditsWatcher::kMinimumInterval);
        watcher.setInterval(1);
        QCOMPARE(intervalChanged.count(), 1);
        QCOMPARE(m_service.requestsTo("/transactions.json"), 0); // nothing until switched on

        watcher.setActive(true);
        QTRY_VERIFY(m_service.requestsTo("/transactions.json") >= 3);
        watcher.setActive(false);
        QTRY_VERIFY(!watcher.isChecking());
        const int polls = m_service.requestsTo("/transactions.json");
        // Nothing more: a poll still due would come well before a new watcher's third poll.
        QVCreditsWatcher later(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-2"));
        later.setInterval(1);
        later.setActive(true);
        QTRY_COMPARE(m_service.requestsTo("/user-2/transactions.json"), 3);
        QCOMPARE(m_service.requestsTo("/transactions.json"), polls + 3);
    }

private:
    // Polls once and waits until that poll has ended.
    bool poll(QVCreditsWatcher &watcher)
    {
        watcher.checkNow();
        return QTest::qWaitFor([&] { return !watcher.isChecking(); }, kPatienceMs);
    }
};

QTEST_GUILESS_MAIN(tst_QVCreditsWatcher)
#include "tst_QVCreditsWatcher.moc"
