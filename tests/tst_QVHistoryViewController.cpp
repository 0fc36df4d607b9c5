#include "Patience.h"
#include "FakeOfferService.h"
#include "SupportHarness.h"

namespace {
QList<QQuickItem *> rowsOf(QVHistoryViewController *history)
{
    QList<QQuickItem *> rows;
    auto *list = history->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    for (QQuickItem *cell : list->property("contentItem").value<QQuickItem *>()->childItems()) {
        if (cell->isVisible() && qobject_cast<QVTransactionCollectionViewCell *>(cell))
            rows.append(cell);
    }
    std::sort(rows.begin(), rows.end(), [](QQuickItem *a, QQuickItem *b) { return a->y() < b->y(); });
    return rows;
}

QString label(QQuickItem *cell, const char *name)
{
    return cell->findChild<QQuickItem *>(QLatin1StringView(name))->property("text").toString();
}
} // namespace

class tst_QVHistoryViewController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { finishPendingRequests(); }

    void rowsShowTheCreditedOffers();
    void noTransactionsShowsTheLabel_data();
    void noTransactionsShowsTheLabel();
    void failureShowsNothing();

private:
    QVHistoryViewController *openHistory(SupportHarness &harness);
    FakeOfferService m_service;
};

void tst_QVHistoryViewController::initTestCase()
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_service.server().caCertificates());
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(m_service.baseAddress());
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
}

void tst_QVHistoryViewController::init()
{
    m_service.setHistoryDropped(false);
    m_service.server().clearRequests();
}

QVHistoryViewController *tst_QVHistoryViewController::openHistory(SupportHarness &harness)
{
    QVSupportViewController *support = harness.openSupport();
    if (!support)
        return nullptr;
    SupportHarness::showTab(support, QVSupportViewController::HistoryTab);
    QVHistoryViewController *history = support->historyViewController();
    return QTest::qWaitFor([history] { return !history->isLoading(); }, kPatienceMs) ? history : nullptr;
}

void tst_QVHistoryViewController::rowsShowTheCreditedOffers()
{
    m_service.setHistory(200, R"({"transactions":[
        {"offer_name":"Dragon Realms","timestamp":"2015-03-04T17:22:05+0000","currency_adjustment":1234.5},
        {"offer_name":"Refund","timestamp":"2015-03-05T01:00:00+0200","currency_adjustment":-5},
        {"offer_name":"Odd date","timestamp":"yesterday","currency_adjustment":40}]})");
    SupportHarness harness;
    QVERIFY(harness.show());
    QVHistoryViewController *history = openHistory(harness);
    QVERIFY(history);
    QTRY_COMPARE(rowsOf(history).size(), 3);
    const QList<QQuickItem *> rows = rowsOf(history);
    QCOMPARE(label(rows[0], "offernameLabel"), QStringLiteral("Dragon Realms"));
    QCOMPARE(label(rows[0], "dateLabel"), QStringLiteral("03/04/2015 05:22:05"));
    QCOMPARE(label(rows[0], "payoutLabel"), QStringLiteral("+1,234.5"));
    QCOMPARE(label(rows[1], "payoutLabel"), QStringLiteral("+-5")); // the plus is always written
    QCOMPARE(label(rows[1], "dateLabel"), QStringLiteral("03/04/2015 11:00:00"));
    QCOMPARE(label(rows[2], "dateLabel"), QString());
    QCOMPARE(label(rows[0], "statusLabel"), QStringLiteral("Credited"));
    for (QQuickItem *row : rows) {
        QCOMPARE(row->height(), 130.0);
        QCOMPARE(row->width(), history->width());
    }
    auto *list = history->findChild<QQuickItem *>(QStringLiteral("collectionView"));
    QCOMPARE(rows[0]->mapToItem(list, QPointF()).y(), 5.0);
    QVERIFY(!history->findChild<QQuickItem *>(QStringLiteral("noOffersCompleted"))->isVisible());
}

void tst_QVHistoryViewController::noTransactionsShowsTheLabel_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("no content") << 204 << QByteArray();
    QTest::newRow("an empty list") << 200 << QByteArray(R"({"transactions":[]})");
    QTest::newRow("an error page") << 500 << QByteArray("<html>down</html>");
}

void tst_QVHistoryViewController::noTransactionsShowsTheLabel()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    m_service.setHistory(status, body);
    if (status == 204)
        QTest::ignoreMessage(QtInfoMsg, "No transactions in history");
    SupportHarness harness;
    QVERIFY(harness.show());
    QVHistoryViewController *history = openHistory(harness);
    QVERIFY(history);
    QQuickItem *empty = history->findChild<QQuickItem *>(QStringLiteral("noOffersCompleted"));
    QVERIFY(empty->isVisible());
    QCOMPARE(empty->property("text").toString(), QStringLiteral("No offers completed yet"));
    QVERIFY(rowsOf(history).isEmpty());
}

void tst_QVHistoryViewController::failureShowsNothing()
{
    m_service.setHistoryDropped(true);
    SupportHarness harness;
    QVERIFY(harness.show());
    QVHistoryViewController *history = openHistory(harness);
    QVERIFY(history);
    // No reload, no message, no retry: the label keeps the look it was built with.
    QVERIFY(!history->findChild<QQuickItem *>(QStringLiteral("noOffersCompleted"))->isVisible());
    QVERIFY(!harness.wall->findChild<QObject *>(QStringLiteral("alert")));
    QCOMPARE(m_service.requestsTo("/transactions.json"), 1);
}

QTEST_MAIN(tst_QVHistoryViewController)
#include "tst_QVHistoryViewController.moc"
