#include "CallbackProbe.h"
#include "ScriptedServer.h"

#include <QuorvaMedia/QuorvaMedia.h>
#include "ServiceTimestamp.h"
#include "UserAgent.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QTcpServer>
#include <QtTest/QtTest>

#include <cstring>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

using Pairs = QMap<QString, QString>;

class tst_QuorvaRestAPI : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void versionSymbols();
    void urlString_data();
    void urlString();
    void userAgent_data();
    void userAgent();
    void userAgentHeaderIsSentOnEveryRequest();
    void dateString_data();
    void dateString();

    void offersQuery_data();
    void offersQuery();
    void offersMoreFlagFollowsStatus_data();
    void offersMoreFlagFollowsStatus();
    void offersRecordsFromReply();
    void addressesAndSchemes();

    void profileStatusRules();
    void profileNotFoundIsSilent();
    void historyNoContentLogsAndSucceeds();
    void ticketBodyAndStatus_data();
    void ticketBodyAndStatus();

    void transportFailures_data();
    void transportFailures();
    void invalidAddressFailsWithoutSending();
    void callbacksRunLaterOnGuiThread();

private:
    void configure(const QString &base);
    ScriptedServer m_server;
};

void tst_QuorvaRestAPI::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("HostApp"));
    QVDevice::setModel(QStringLiteral("Phone"));
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_server.caCertificates());
}

void tst_QuorvaRestAPI::configure(const QString &base)
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(base);
    api->setPubId(QStringLiteral("pub1"));
    api->setCorvelId(QStringLiteral("wall2"));
    api->setSubId1(QStringLiteral("user3"));
    api->setGender(QString());
    api->setAgeRange(QString());
    api->setSubId2(QString());
    api->setSubId3(QString());
    api->setSubId4(QString());
    api->setAdvertisingInfoProvider(nullptr);
}

void tst_QuorvaRestAPI::init()
{
    configure(m_server.baseAddress());
    m_server.respond(200, "{}");
    m_server.clearRequests();
}

void tst_QuorvaRestAPI::versionSymbols()
{
    const char expected[] = "@(#)PROGRAM:QuorvaMedia  PROJECT:QuorvaMedia-1.1.0\n";
    QCOMPARE(std::memcmp(QuorvaMediaVersionString, expected, sizeof expected), 0);
    QCOMPARE(QuorvaMediaVersionNumber, 1.1);
}

void tst_QuorvaRestAPI::urlString_data()
{
    QTest::addColumn<bool>("hasParams");
    QTest::addColumn<QVariantMap>("params");
    QTest::addColumn<QString>("expected");
    const QString base = QStringLiteral("https://h/p.json");
    QTest::newRow("absent") << false << QVariantMap() << base;
    QTest::newRow("empty") << true << QVariantMap() << base + u'?';
    QTest::newRow("one pair") << true << QVariantMap{{QStringLiteral("k"), QStringLiteral("v")}} << base + QStringLiteral("?k=v");
    QTest::newRow("several")
        << true << QVariantMap{{QStringLiteral("a"), QStringLiteral("1")}, {QStringLiteral("b"), QStringLiteral("2")}}
        << base + QStringLiteral("?a=1&b=2");
    QTest::newRow("booleans")
        << true << QVariantMap{{QStringLiteral("t"), true}, {QStringLiteral("f"), false}} << base + QStringLiteral("?f=0&t=1");
    QTest::newRow("unescaped") << true << QVariantMap{{QStringLiteral("s"), QStringLiteral("a b&c")}}
                               << base + QStringLiteral("?s=a b&c");
}

void tst_QuorvaRestAPI::urlString()
{
    QFETCH(bool, hasParams);
    QFETCH(QVariantMap, params);
    QFETCH(QString, expected);
    const auto optional = hasParams ? std::optional(params) : std::nullopt;
    QCOMPARE(QuorvaRestAPI::sharedInstance()->urlString(QStringLiteral("https://h/p.json"), optional), expected);
}

void tst_QuorvaRestAPI::userAgent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("expected");
    QTest::newRow("both") << "HostApp" << "Tablet" << "HostApp Quorva-SDK (iOS/Tablet)";
    QTest::newRow("no name") << "" << "Phone" << "(null) Quorva-SDK (iOS/Phone)";
    QTest::newRow("null name") << QString() << "Phone" << "(null) Quorva-SDK (iOS/Phone)";
}

void tst_QuorvaRestAPI::userAgent()
{
    QFETCH(QString, name);
    QFETCH(QString, model);
    QFETCH(QString, expected);
    QCOMPARE(quorva::detail::formatUserAgent(name, model), expected);
}

void tst_QuorvaRestAPI::userAgentHeaderIsSentOnEveryRequest()
{
    QCOMPARE(QuorvaRestAPI::sharedInstance()->customUserAgent(), QStringLiteral("HostApp Quorva-SDK (iOS/Phone)"));
    CallbackProbe probe;
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->fetchCategories([&](const QList<QVCategory> &) { ++probe.successes; }, probe.failure());
    api->fetchProfile([&](const QVProfile &) { ++probe.successes; }, probe.failure());
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^params: ")));
    api->createSupportTicket(QStringLiteral("n"), QStringLiteral("e"), QStringLiteral("1"), {}, {}, {},
                             [&](const QVariant &) { ++probe.successes; }, probe.failure());
    QTRY_COMPARE(probe.successes + probe.failures, 3);
    for (const HttpRequest &request : m_server.requests())
        QCOMPARE(request.header("user-agent"), std::string("HostApp Quorva-SDK (iOS/Phone)"));
}

void tst_QuorvaRestAPI::dateString_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");
    QTest::newRow("afternoon is 12-hour without marker") << "2015-03-04T17:22:05+0000" << "03/04/2015 05:22:05";
    QTest::newRow("morning") << "2015-03-04T05:22:05+0000" << "03/04/2015 05:22:05";
    QTest::newRow("midnight hour reads 12") << "2015-03-04T00:05:09+0000" << "03/04/2015 12:05:09";
    QTest::newRow("noon") << "2015-03-04T12:00:00+0000" << "03/04/2015 12:00:00";
    QTest::newRow("offset moves to local") << "2015-03-04T01:30:00+0200" << "03/03/2015 11:30:00";
    QTest::newRow("colon offset") << "2015-03-04T17:22:05-05:00" << "03/04/2015 10:22:05";
    QTest::newRow("date only") << "2015-03-04" << QString();
    QTest::newRow("no offset") << "2015-03-04T17:22:05" << QString();
    QTest::newRow("month 13") << "2015-13-04T17:22:05+0000" << QString();
    QTest::newRow("empty") << "" << QString();
    QTest::newRow("null") << QString() << QString();
}

void tst_QuorvaRestAPI::dateString()
{
    QFETCH(QString, input);
    QFETCH(QString, expected);
    const QString actual = QuorvaRestAPI::sharedInstance()->dateStringFromString(input);
    QCOMPARE(actual, expected);
    QCOMPARE(actual.isNull(), expected.isNull());
}

void tst_QuorvaRestAPI::offersQuery_data()
{
    QTest::addColumn<QString>("sort");
    QTest::addColumn<QString>("category");
    QTest::addColumn<bool>("featured");
    QTest::addColumn<QStringList>("targeting"); // gender, ageRange, subId2, subId3, subId4
    QTest::addColumn<bool>("withProvider");
    QTest::addColumn<Pairs>("expected");

    const Pairs base{{"subid1", "user3"}, {"limit", "30"}, {"offset", "60"}, {"sort_order", "desc"},
                     {"device", "00000000-0000-0000-0000-000000000000"}, {"limit_tracking", "0"},
                     {"sort_by", "popularity"}};
    const QStringList none{QString(), QString(), QString(), QString(), QString()};
    QTest::newRow("defaults") << QString() << QString() << false << none << false << base;

    Pairs featured = base;
    featured.insert("featured_only", "1");
    featured.insert("sort_by", "payout");
    QTest::newRow("featured and sort") << "payout" << QString() << true << none << false << featured;

    Pairs category = base;
    category.insert("category_id", "7");
    QTest::newRow("category") << QString() << "7" << false << none << false << category;

    Pairs targeted = base;
    targeted.insert("gender", "f");
    targeted.insert("age_range_id", "3");
    targeted.insert("subid2", "s2");
    targeted.insert("subid3", "s3");
    targeted.insert("subid4", "");
    QTest::newRow("targeting, empty subid4 still sent")
        << QString() << QString() << false << QStringList{"f", "3", "s2", "s3", ""} << false << targeted;

    Pairs tracked = base;
    tracked.insert("device", "6F9619FF-8B86-D011-B42D-00CF4FC964FF");
    tracked.insert("limit_tracking", "1");
    QTest::newRow("provider: tracking allowed is sent as 1")
        << QString() << QString() << false << none << true << tracked;
}

void tst_QuorvaRestAPI::offersQuery()
{
    QFETCH(QString, sort);
    QFETCH(QString, category);
    QFETCH(bool, featured);
    QFETCH(QStringList, targeting);
    QFETCH(bool, withProvider);
    QFETCH(Pairs, expected);

    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setGender(targeting[0]);
    api->setAgeRange(targeting[1]);
    api->setSubId2(targeting[2]);
    api->setSubId3(targeting[3]);
    api->setSubId4(targeting[4]);
    if (withProvider) {
        api->setAdvertisingInfoProvider([] {
            return QVAdvertisingInfo{QStringLiteral("{6f9619ff-8b86-d011-b42d-00cf4fc964ff}"), true};
        });
    }
    CallbackProbe probe;
    api->fetchOffers(60, sort, category, featured,
                     [&](const QList<QVOffer> &, bool) { ++probe.successes; }, probe.failure());
    QTRY_VERIFY(probe.finished());
    QCOMPARE(probe.successes, 1);
    const HttpRequest received = m_server.lastRequest();
    QCOMPARE(rawQueryPairs(received.query), expected);
    QCOMPARE(received.method, std::string("GET"));
    QVERIFY(received.tls);
    QCOMPARE(received.path, std::string("/corvel/api/publisher/pub1/profile/wall2/offers.json"));
}

void tst_QuorvaRestAPI::offersMoreFlagFollowsStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("more");
    const QByteArray one = R"({"offers":[{"offer_id":"1","name":"A"}]})";
    QTest::newRow("200 with offers") << 200 << one << 1 << true;
    QTest::newRow("204 empty") << 204 << QByteArray() << 0 << false;
    QTest::newRow("500 json error") << 500 << QByteArray(R"({"error":"boom"})") << 0 << true;
    QTest::newRow("404 json error") << 404 << QByteArray(R"({"error":"no"})") << 0 << true;
    QTest::newRow("200 not json") << 200 << QByteArray("<html>oops</html>") << 0 << true;
    QTest::newRow("offers is an object") << 200 << QByteArray(R"({"offers":{"offer_id":"1"}})") << 0 << true;
    QTest::newRow("top level is a list") << 200 << QByteArray(R"([{"offers":[]}])") << 0 << true;
    QTest::newRow("elements of other types skipped")
        << 200 << QByteArray(R"({"offers":[1,"x",null,{"name":"B"}]})") << 1 << true;
}

void tst_QuorvaRestAPI::offersMoreFlagFollowsStatus()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(int, count);
    QFETCH(bool, more);
    m_server.respond(status, body);
    CallbackProbe probe;
    QList<QVOffer> received;
    bool receivedMore = !more;
    QuorvaRestAPI::sharedInstance()->fetchOffers(0, {}, {}, false,
        [&](const QList<QVOffer> &offers, bool hasMore) { ++probe.successes; received = offers; receivedMore = hasMore; },
        probe.failure());
    QTRY_VERIFY(probe.finished());
    QCOMPARE(probe.successes, 1);
    QCOMPARE(received.size(), count);
    QCOMPARE(receivedMore, more);
}

void tst_QuorvaRestAPI::offersRecordsFromReply()
{
    m_server.respond(200, R"({"offers":[
        {"offer_id":"o1","name":"Dragon","description":"Reach level 5","currency_count":1500,
         "image_url":"//cdn.example/p/1.png","click_url":"https://click/1"},
        {"offer_id":42,"name":"NoPicture","currency_count":"250"}]})");
    QList<QVOffer> offers;
    CallbackProbe probe;
    QuorvaRestAPI::sharedInstance()->fetchOffers(0, {}, {}, false,
        [&](const QList<QVOffer> &list, bool) { ++probe.successes; offers = list; }, probe.failure());
    QTRY_VERIFY(probe.finished());
    QCOMPARE(offers.size(), 2);
    QCOMPARE(offers[0].offerId(), QStringLiteral("o1"));
    QCOMPARE(offers[0].offerName(), QStringLiteral("Dragon"));
    QCOMPARE(offers[0].offerDescription(), QStringLiteral("Reach level 5"));
    QCOMPARE(offers[0].currencyCount(), QStringLiteral("1500"));
    QCOMPARE(offers[0].imageURL(), QStringLiteral("https://cdn.example/p/1.png"));
    QCOMPARE(offers[0].clickURL(), QStringLiteral("https://click/1"));
    QCOMPARE(offers[1].offerId(), QStringLiteral("42"));
    QCOMPARE(offers[1].imageURL(), QStringLiteral("https:(null)"));
    // A string where a number belongs counts as absent.
    QVERIFY(offers[1].currencyCount().isNull());
    QVERIFY(offers[1].offerDescription().isNull());
}

void tst_QuorvaRestAPI::addressesAndSchemes()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    CallbackProbe probe;
    api->fetchProfile([&](const QVProfile &) { ++probe.successes; }, probe.failure());
    QTRY_VERIFY(probe.finished());
    HttpRequest r = m_server.lastRequest();
    QVERIFY2(!r.tls, "profile details go over plain http");
    QCOMPARE(r.target, std::string("/corvel/api/publisher/pub1/profile/wall2/details.json"));

    api->fetchCategories([&](const QList<QVCategory> &) { ++probe.successes; }, probe.failure());
    QTRY_COMPARE(probe.successes, 2);
    r = m_server.lastRequest();
    QVERIFY(r.tls);
    QCOMPARE(r.target, std::string("/corvel/categories.json?visibility=1"));

    api->fetchHistory([&](const QList<QVTransaction> &) { ++probe.successes; }, probe.failure());
    QTRY_COMPARE(probe.successes, 3);
    r = m_server.lastRequest();
    QVERIFY(r.tls);
    QCOMPARE(r.target, std::string("/corvel/api/publisher/pub1/profile/wall2/user/user3/transactions.json"));
    QCOMPARE(probe.failures, 0);
}

void tst_QuorvaRestAPI::profileStatusRules()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    m_server.respond(200, R"({"profile":{"settings":{"currency":{"visible":true,"name":"Gems"}}}})");
    QVProfile profile;
    CallbackProbe probe;
    api->fetchProfile([&](const QVProfile &p) { ++probe.successes; profile = p; }, probe.failure());
    QTRY_COMPARE(probe.successes, 1);
    QVERIFY(profile.showCurrency());
    QCOMPARE(profile.currencyName(), QStringLiteral("Gems"));

    m_server.respond(500, R"({"error":"down"})");
    api->fetchProfile([&](const QVProfile &p) { ++probe.successes; profile = p; }, probe.failure());
    QTRY_COMPARE(probe.successes, 2);
    QVERIFY(!profile.showCurrency());
    QVERIFY(profile.currencyName().isNull());
    QCOMPARE(probe.failures, 0);
}

void tst_QuorvaRestAPI::profileNotFoundIsSilent()
{
    m_server.respond(404, R"({"error":"no such profile"})");
    QTest::ignoreMessage(QtInfoMsg, "corvelId doesn't exist for the specified pubId");
    CallbackProbe probe;
    QuorvaRestAPI::sharedInstance()->fetchProfile([&](const QVProfile &) { ++probe.successes; }, probe.failure());
    QTRY_COMPARE(m_server.requestCount(), 1);
    // Long enough for the reply to be parsed and delivered had there been a callback.
    QTest::qWait(300);
    QCOMPARE(probe.successes, 0);
    QCOMPARE(probe.failures, 0);
}

void tst_QuorvaRestAPI::historyNoContentLogsAndSucceeds()
{
    m_server.respond(204, {});
    QTest::ignoreMessage(QtInfoMsg, "No transactions in history");
    CallbackProbe probe;
    QList<QVTransaction> received{QVTransaction()};
    QuorvaRestAPI::sharedInstance()->fetchHistory(
        [&](const QList<QVTransaction> &list) { ++probe.successes; received = list; }, probe.failure());
    QTRY_COMPARE(probe.successes, 1);
    QVERIFY(received.isEmpty());

    m_server.respond(200, R"({"transactions":[{"offer_name":"Dragon","timestamp":"2015-03-04T17:22:05+0000","currency_adjustment":-40},
                                              {"offer_name":"Bad","timestamp":"yesterday","currency_adjustment":5}]})");
    QuorvaRestAPI::sharedInstance()->fetchHistory(
        [&](const QList<QVTransaction> &list) { ++probe.successes; received = list; }, probe.failure());
    QTRY_COMPARE(probe.successes, 2);
    QCOMPARE(received.size(), 2);
    QCOMPARE(received[0].timestamp(), QStringLiteral("03/04/2015 05:22:05"));
    QCOMPARE(received[0].currencyAdjustment(), QStringLiteral("-40"));
    QVERIFY(received[1].timestamp().isNull());
    QCOMPARE(received[1].currencyAdjustment(), QStringLiteral("5"));
}

void tst_QuorvaRestAPI::ticketBodyAndStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("withOptionals");
    QTest::addColumn<bool>("succeeds");
    QTest::addColumn<QVariant>("ticketId");
    QTest::newRow("201 number id") << 201 << QByteArray(R"({"ticket_id":17})") << false << true << QVariant(qlonglong(17));
    QTest::newRow("201 string id, optionals") << 201 << QByteArray(R"({"ticket_id":"T-9"})") << true << true
                                              << QVariant(QStringLiteral("T-9"));
    QTest::newRow("201 not json") << 201 << QByteArray("created") << false << true << QVariant();
    QTest::newRow("200 is a failure") << 200 << QByteArray(R"({"ticket_id":17})") << false << false << QVariant();
    QTest::newRow("422 is a failure") << 422 << QByteArray(R"({"error":"missing"})") << false << false << QVariant();
}

void tst_QuorvaRestAPI::ticketBodyAndStatus()
{
    QFETCH(int, status);
    QFETCH(QByteArray, reply);
    QFETCH(bool, withOptionals);
    QFETCH(bool, succeeds);
    QFETCH(QVariant, ticketId);
    m_server.respond(status, reply);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setSubId2(QStringLiteral("not-sent"));
    const QString message = withOptionals ? QStringLiteral("It never credited") : QString();
    const QString offer = withOptionals ? QStringLiteral("Dragon") : QString();
    const QString completed = withOptionals ? QStringLiteral("11/02/2026") : QString();
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^params: \\{.*\"email\":\"ann@example.com\".*\\}$")));
    CallbackProbe probe;
    QVariant receivedId(QStringLiteral("untouched"));
    api->createSupportTicket(QStringLiteral("Ann"), QStringLiteral("ann@example.com"), QStringLiteral("1"),
                             message, offer, completed,
                             [&](const QVariant &id) { ++probe.successes; receivedId = id; }, probe.failure());
    QTRY_VERIFY(probe.finished());
    QCOMPARE(probe.successes, succeeds ? 1 : 0);
    if (succeeds)
        QCOMPARE(receivedId, ticketId);

    const HttpRequest r = m_server.lastRequest();
    QCOMPARE(r.method, std::string("POST"));
    QVERIFY(r.tls);
    QCOMPARE(r.target, std::string("/corvel/api/publisher/pub1/profile/wall2/user/user3/tickets.json"));
    QCOMPARE(r.header("content-type"), std::string("application/json"));
    QVERIFY2(r.body.find("\n    \"") != std::string::npos, "the body is pretty-printed");
    const QJsonObject body = QJsonDocument::fromJson(QByteArray::fromStdString(r.body)).object();
    QStringList expectedKeys{"email", "name", "subject_id"};
    if (withOptionals)
        expectedKeys << "completed_at" << "message" << "offer_name";
    expectedKeys.sort();
    QCOMPARE(body.keys(), expectedKeys);
    QCOMPARE(body.value("name").toString(), QStringLiteral("Ann"));
    QCOMPARE(body.value("subject_id").toString(), QStringLiteral("1"));
    if (withOptionals)
        QCOMPARE(body.value("completed_at").toString(), completed);
}

void tst_QuorvaRestAPI::transportFailures_data()
{
    QTest::addColumn<int>("fault");
    QTest::newRow("dropped before the answer") << int(HttpResponse::Fault::DropConnection);
    QTest::newRow("body cut short") << int(HttpResponse::Fault::TruncateBody);
}

void tst_QuorvaRestAPI::transportFailures()
{
    QFETCH(int, fault);
    m_server.respond([fault](const HttpRequest &) {
        HttpResponse response = HttpResponse::json(200, R"({"offers":[{"name":"A"},{"name":"B"}]})");
        response.fault = static_cast<HttpResponse::Fault>(fault);
        return response;
    });
    CallbackProbe probe;
    QuorvaRestAPI::sharedInstance()->fetchOffers(0, {}, {}, false,
        [&](const QList<QVOffer> &, bool) { ++probe.successes; }, probe.failure());
    QTRY_VERIFY(probe.finished());
    QCOMPARE(probe.failures, 1);
    QCOMPARE(probe.successes, 0);
}

void tst_QuorvaRestAPI::invalidAddressFailsWithoutSending()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setSubId2(QStringLiteral("a b"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("request address is not valid")));
    CallbackProbe probe;
    api->fetchOffers(0, {}, {}, false, [&](const QList<QVOffer> &, bool) { ++probe.successes; }, probe.failure());
    probe.requestReturned = true;
    QTRY_COMPARE(probe.failures, 1);
    QVERIFY(!probe.ranBeforeReturn);
    QCOMPARE(m_server.requestCount(), 0);

    // A port nobody listens on.
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const quint16 port = closed.serverPort();
    closed.close();
    configure(QStringLiteral("127.0.0.1:%1").arg(port));
    api->fetchCategories([&](const QList<QVCategory> &) { ++probe.successes; }, probe.failure());
    QTRY_COMPARE(probe.failures, 2);
    QCOMPARE(probe.successes, 0);
}

void tst_QuorvaRestAPI::callbacksRunLaterOnGuiThread()
{
    m_server.respond(200, R"({"offers":[]})");
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    CallbackProbe success;
    api->fetchOffers(0, {}, {}, false, [&](const QList<QVOffer> &, bool) { success.note(); ++success.successes; },
                     success.failure());
    success.requestReturned = true;
    QTRY_VERIFY(success.finished());
    QCOMPARE(success.successes, 1);
    QVERIFY(!success.ranBeforeReturn);
    QVERIFY(!success.ranOffGuiThread);
}

QTEST_GUILESS_MAIN(tst_QuorvaRestAPI)
#include "tst_QuorvaRestAPI.moc"
