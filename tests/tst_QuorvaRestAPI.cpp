// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Patience.h"
#include "CallbackProbe.h"
#include "LogCapture.h"
#include "FakeOfferService.h"
#include "Http2Proxy.h"
#include "HttpTransport.h"
#include "LatencyRelay.h"

#include <QuorvaMedia/QuorvaMedia.h>
#include "ServiceTimestamp.h"
#include "UserAgent.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtNetwork/QTcpServer>
#include <QtTest/QtTest>

#include <atomic>
#include <cstring>
#include <set>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

using Pairs = QMap<QString, QString>;

Q_DECLARE_METATYPE(HttpResponse::Fault)
Q_DECLARE_METATYPE(QVPrivacy)

// The requests' names, as the client's log lines give them, by Kind.
const char *const kKindNames[] = {"offers", "profile", "categories", "history", "ticket"};

class tst_QuorvaRestAPI : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("HostApp"));
        QVDevice::setModel(QStringLiteral("Phone"));
        QuorvaRestAPI::sharedInstance()->addCaCertificates(m_server.caCertificates());
    }

    void init()
    {
        configure(m_server.baseAddress());
        QuorvaRestAPI::sharedInstance()->setTransferTimeout(QuorvaRestAPI::kDefaultTransferTimeout);
        QuorvaRestAPI::sharedInstance()->setMaximumReplySize(QuorvaRestAPI::kDefaultMaximumReplySize);
        m_server.respond(200, "{}");
        m_server.clearRequests();
    }

    // Every request names the host app; a GET carries no body headers, a POST only its body's.
    void headersAreTheUserAgentAndTheBodys()
    {
        QCOMPARE(quorva::detail::formatUserAgent(QString(), QStringLiteral("Phone")), QStringLiteral("(null) Quorva-SDK (iOS/Phone)"));
        QCOMPARE(QuorvaRestAPI::sharedInstance()->customUserAgent(), QStringLiteral("HostApp Quorva-SDK (iOS/Phone)"));
        CallbackProbe probe;
        for (int kind = int(Kind::Offers); kind <= int(Kind::Ticket); ++kind)
            start(Kind(kind), probe);
        QTRY_COMPARE(probe.successes + probe.failures, 5);
        QCOMPARE(m_server.requestCount(), 5);
        for (const HttpRequest &request : m_server.requests()) {
            QCOMPARE(request.header("user-agent"), std::string("HostApp Quorva-SDK (iOS/Phone)"));
            std::set<std::string> names;
            for (const auto &[name, text] : request.headers)
                names.insert(name);
            std::set<std::string> expected{"host", "user-agent"};
            if (request.method != "GET")
                expected.insert({"content-type", "content-length"});
            QCOMPARE(names, expected);
        }
    }

    void dateString_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        QTest::newRow("afternoon is 12-hour without marker") << "2015-03-04T17:22:05+0000" << "03/04/2015 05:22:05";
        QTest::newRow("morning") << "2015-03-04T05:22:05+0000" << "03/04/2015 05:22:05";
        QTest::newRow("midnight hour reads 12") << "2015-03-04T00:05:09+0000" << "03/04/2015 12:05:09";
        QTest::newRow("noon") << "2015-03-04T12:00:00+0000" << "03/04/2015 12:00:00";
        QTest::newRow("offset moves to local") << "2015-03-04T01:30:00+0200" << "03/03/2015 11:30:00";
        QTest::newRow("colon offset") << "2015-03-04T17:22:05-05:00" << "03/04/2015 10:22:05";
        QTest::newRow("largest offset east") << "2015-03-04T17:22:05+2359" << "03/03/2015 05:23:05";
        QTest::newRow("offset beyond 14 hours") << "2015-03-04T17:22:05+1500" << "03/04/2015 02:22:05";
        QTest::newRow("offset west") << "2015-03-04T17:22:05-1500" << "03/05/2015 08:22:05";
        QTest::newRow("minutes of offset out of range") << "2015-03-04T17:22:05+0160" << QString();
        QTest::newRow("trailing newline") << "2015-03-04T17:22:05+0000\n" << QString();
        QTest::newRow("year 1") << "0001-01-01T12:00:00+0000" << "01/01/0001 12:00:00";
        QTest::newRow("before year 1 once converted") << "0001-01-01T00:30:00+0100" << QString();
        QTest::newRow("date only") << "2015-03-04" << QString();
        QTest::newRow("no offset") << "2015-03-04T17:22:05" << QString();
        QTest::newRow("month 13") << "2015-13-04T17:22:05+0000" << QString();
        QTest::newRow("empty") << "" << QString();
        QTest::newRow("null") << QString() << QString();
    }

    void dateString()
    {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        const QString actual = QuorvaRestAPI::sharedInstance()->dateStringFromString(input);
        QCOMPARE(actual, expected);
        QCOMPARE(actual.isNull(), expected.isNull());
    }

    void offersQuery_data()
    {
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QString>("category");
        QTest::addColumn<bool>("featured");
        QTest::addColumn<QStringList>("targeting"); // gender, ageRange, subId2, subId3, subId4
        QTest::addColumn<bool>("withProvider");
        QTest::addColumn<QVPrivacy>("privacy");
        QTest::addColumn<Pairs>("changed");  // the pairs that differ from the defaults' query
        QTest::addColumn<QString>("privacyPairs"); // what follows the request's own pairs
        const QStringList none;
        const QVPrivacy unset;
        QTest::newRow("defaults") << QString() << QString() << false << none << false << unset << Pairs() << "";
        QTest::newRow("featured and sort") << "payout" << QString() << true << none << false << unset
                                           << Pairs{{"featured_only", "1"}, {"sort_by", "payout"}} << "";
        QTest::newRow("category") << QString() << "7" << false << none << false << unset << Pairs{{"category_id", "7"}} << "";
        QTest::newRow("targeting, empty subid4 still sent")
            << QString() << QString() << false << QStringList{"f", "3", "s2", "s3", ""} << false << unset
            << Pairs{{"gender", "f"}, {"age_range_id", "3"}, {"subid2", "s2"}, {"subid3", "s3"}, {"subid4", ""}} << "";
        QTest::newRow("provider: tracking allowed is sent as 1") << QString() << QString() << false << none << true << unset
            << Pairs{{"device", "6F9619FF-8B86-D011-B42D-00CF4FC964FF"}, {"limit_tracking", "1"}} << "";

        // The signals, each with targeting and an identifier that they may withhold.
        const QStringList targeting{"f", "3", "s2"};
        const Pairs personal{{"gender", "f"}, {"age_range_id", "3"}, {"subid2", "s2"},
                             {"device", "6F9619FF-8B86-D011-B42D-00CF4FC964FF"}, {"limit_tracking", "1"}};
        const Pairs withheld{{"subid2", "s2"}}; // the all-zero identifier and tracking "0" stay as by default
        using A = QVPrivacy::Answer;
        auto privacy = [](auto set) { QVPrivacy p; set(p); return p; };
        auto row = [&](const char *name, const QVPrivacy &p, const Pairs &pairs, const QString &tail) {
            Pairs changed = pairs;
            changed.insert(rawQueryPairs(tail.mid(1).toStdString()));
            QTest::newRow(name) << QString() << QString() << false << targeting << true << p << changed << tail;
        };
        row("GDPR with consent and its string", privacy([](QVPrivacy &p) {
                p.gdprApplies = A::Yes; p.gdprConsent = A::Yes; p.gdprConsentString = "CPXxRfAPXxRfAAfKABENB-CgAAAAAAAAAAYgAAAAAAAA";
            }), personal, "&gdpr=1&gdpr_consent=CPXxRfAPXxRfAAfKABENB-CgAAAAAAAAAAYgAAAAAAAA");
        row("GDPR applies, consent unknown", privacy([](QVPrivacy &p) { p.gdprApplies = A::Yes; }), withheld, "&gdpr=1");
        row("GDPR applies, consent refused", privacy([](QVPrivacy &p) { p.gdprApplies = A::Yes; p.gdprConsent = A::No; }),
            withheld, "&gdpr=1");
        row("GDPR does not apply", privacy([](QVPrivacy &p) { p.gdprApplies = A::No; }), personal, "&gdpr=0");
        row("consent without the GDPR said sends no gdpr",
            privacy([](QVPrivacy &p) { p.gdprConsent = A::No; p.gdprConsentString = "CP"; }), personal, "&gdpr_consent=CP");
        row("US privacy: opted out of sale", privacy([](QVPrivacy &p) { p.usPrivacyString = "1YYN"; }), withheld,
            "&us_privacy=1YYN");
        row("US privacy: lower case opt-out", privacy([](QVPrivacy &p) { p.usPrivacyString = "1nyn"; }), withheld,
            "&us_privacy=1nyn");
        row("US privacy: not opted out", privacy([](QVPrivacy &p) { p.usPrivacyString = "1YNN"; }), personal,
            "&us_privacy=1YNN");
        row("US privacy that does not parse restricts nothing", privacy([](QVPrivacy &p) { p.usPrivacyString = "2YYN"; }),
            personal, "&us_privacy=2YYN");
        row("US privacy too long restricts nothing", privacy([](QVPrivacy &p) { p.usPrivacyString = "1YYNN"; }),
            personal, "&us_privacy=1YYNN");
        row("GPP string and sections", privacy([](QVPrivacy &p) { p.gppString = "DBABzw~1YYN"; p.gppSectionIds = "7_8"; }),
            personal, "&gpp=DBABzw~1YYN&gpp_sid=7_8");
        row("directed at children", privacy([](QVPrivacy &p) { p.childDirected = A::Yes; }), withheld, "&coppa=1");
        row("below the age of consent", privacy([](QVPrivacy &p) { p.childDirected = A::No; p.belowConsentAge = A::Yes; }),
            withheld, "&coppa=1");
        row("known not to be a child", privacy([](QVPrivacy &p) { p.belowConsentAge = A::No; }), personal, "&coppa=0");
        row("identifier opt-out keeps the targeting", privacy([](QVPrivacy &p) { p.advertisingIdOptOut = true; }),
            Pairs{{"gender", "f"}, {"age_range_id", "3"}, {"subid2", "s2"}}, "");
        row("every signal, in order", privacy([](QVPrivacy &p) {
                p.gdprApplies = A::Yes; p.gdprConsent = A::Yes; p.gdprConsentString = "CO"; p.usPrivacyString = "1NNN";
                p.gppString = "DB"; p.gppSectionIds = "2"; p.childDirected = A::No;
            }), personal, "&gdpr=1&gdpr_consent=CO&us_privacy=1NNN&gpp=DB&gpp_sid=2&coppa=0");

        // A consent tool's string of any content stays one value: nothing added, split or dropped.
        row("query characters escaped", privacy([](QVPrivacy &p) { p.gdprConsentString = "a&gdpr=0#b c?d=e"; }),
            personal, "&gdpr_consent=a%26gdpr%3D0%23b%20c%3Fd%3De");
        row("NUL, line break and non-ASCII escaped", privacy([](QVPrivacy &p) {
                p.usPrivacyString = QStringLiteral("1\u0000Y\n\u00e9");
            }), personal, "&us_privacy=1%00Y%0A%C3%A9");
        row("blanks only", privacy([](QVPrivacy &p) { p.gppSectionIds = "  "; }), personal, "&gpp_sid=%20%20");
        row("very long", privacy([](QVPrivacy &p) { p.gppString = QString(6000, u'Z'); }), personal,
            "&gpp=" + QString(6000, u'Z'));
    }

    void offersQuery()
    {
        QFETCH(QString, sort);
        QFETCH(QString, category);
        QFETCH(bool, featured);
        QFETCH(QStringList, targeting);
        QFETCH(bool, withProvider);
        QFETCH(QVPrivacy, privacy);
        QFETCH(Pairs, changed);
        QFETCH(QString, privacyPairs);
        Pairs expected{{"subid1", "user3"}, {"limit", "30"}, {"offset", "60"}, {"sort_order", "desc"},
                       {"device", "00000000-0000-0000-0000-000000000000"}, {"limit_tracking", "0"},
                       {"sort_by", "popularity"}};
        expected.insert(changed);

        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        setTargeting(api, targeting);
        api->setPrivacy(privacy);
        // The provider blocks on a phone: it is read off the GUI thread, and not at all
        // when the signals withhold what it gives.
        std::atomic<int> providerCalls{0};
        std::atomic<bool> providerOnGuiThread{false};
        if (withProvider) {
            api->setAdvertisingInfoProvider([&] {
                ++providerCalls;
                providerOnGuiThread = QThread::currentThread() == QCoreApplication::instance()->thread();
                return QVAdvertisingInfo{QStringLiteral("{6f9619ff-8b86-d011-b42d-00cf4fc964ff}"), true};
            });
        }
        LogCapture log;
        CallbackProbe probe;
        api->fetchOffers(60, sort, category, featured,
                         [&](const QList<QVOffer> &, bool) { ++probe.successes; }, probe.failure());
        QTRY_VERIFY(probe.finished());
        QCOMPARE(probe.successes, 1);
        const HttpRequest received = m_server.lastRequest();
        QCOMPARE(rawQueryPairs(received.query), expected);
        QVERIFY(QString::fromStdString(received.query).endsWith(privacyPairs));
        QCOMPARE(received.method, std::string("GET"));
        QVERIFY(received.tls);
        QCOMPARE(received.path, std::string("/corvel/api/publisher/pub1/profile/wall2/offers.json"));
        const bool identifierSent = expected.value("device") != QLatin1String("00000000-0000-0000-0000-000000000000");
        QCOMPARE(providerCalls.load(), identifierSent ? 1 : 0);
        QVERIFY(!providerOnGuiThread);
        for (const QString &value : {privacy.gdprConsentString, privacy.usPrivacyString, privacy.gppString}) {
            if (value.size() > 2)
                QVERIFY2(!log.messages().join(u'\n').contains(value), "a consent string was logged");
        }
    }

    void offersMoreFlagFollowsStatus_data()
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

    void offersMoreFlagFollowsStatus()
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

    void addressesAndSchemes()
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

    void profileNotFoundIsSilent()
    {
        m_server.respond(404, R"({"error":"no such profile"})");
        QTest::ignoreMessage(QtInfoMsg, "corvelId doesn't exist for the specified pubId");
        LogCapture log;
        CallbackProbe probe;
        QuorvaRestAPI::sharedInstance()->fetchProfile([&](const QVProfile &) { ++probe.successes; }, probe.failure());
        // The line is written where a callback would have run.
        QTRY_VERIFY(log.contains(QStringLiteral("corvelId doesn't exist for the specified pubId")));
        QCOMPARE(probe.successes, 0);
        QCOMPARE(probe.failures, 0);
    }

    void historyNoContentLogsAndSucceeds()
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

    void ticketBodyAndStatus_data()
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

    void ticketBodyAndStatus()
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

    void everyStatusIsAResponse_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("location");
        const QList<int> statuses{400, 407, 418, 302, 301, 500};
        for (int kind = int(Kind::Offers); kind <= int(Kind::Ticket); ++kind) {
            for (int status : statuses) {
                const QByteArray location = status == 301 ? "https://elsewhere.example/" : "";
                QTest::addRow("%s %d%s", kKindNames[kind], status, location.isEmpty() ? "" : " with Location")
                    << kind << status << location;
            }
        }
    }

    void everyStatusIsAResponse()
    {
        QFETCH(int, kind);
        QFETCH(int, status);
        QFETCH(QByteArray, location);
        m_server.respond([status, location](const HttpRequest &) {
            HttpResponse response = HttpResponse::json(status, R"({"error":"no"})");
            if (!location.isEmpty())
                response.headers["location"] = location.toStdString();
            return response;
        });
        CallbackProbe probe;
        start(Kind(kind), probe);
        QTRY_VERIFY(probe.finished());
        // The ticket succeeds only on 201; every other request takes any status as an answer.
        const bool ticket = Kind(kind) == Kind::Ticket;
        QCOMPARE(probe.successes, ticket ? 0 : 1);
        QCOMPARE(probe.failures, ticket ? 1 : 0);
        QCOMPARE(m_server.requestCount(), 1); // redirects are not followed
    }

    void faultyTransfersEndOnce_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<HttpResponse::Fault>("fault");
        QTest::addColumn<int>("bodyBytes");
        QTest::addColumn<QString>("warning"); // null: the reply is taken
        using Fault = HttpResponse::Fault;
        for (int kind = int(Kind::Offers); kind <= int(Kind::Ticket); ++kind) {
            QTest::addRow("%s, dropped before the answer", kKindNames[kind]) << kind << Fault::DropConnection << 0 << QString("");
            QTest::addRow("%s, body cut short", kKindNames[kind]) << kind << Fault::TruncateBody << 0 << QString("");
        }
        const auto timedOut = [](Kind kind) { return QStringLiteral("%1 request timed out after 400 ms").arg(kKindNames[int(kind)]); };
        QTest::newRow("offers, never answered") << int(Kind::Offers) << Fault::Stall << 0 << timedOut(Kind::Offers);
        QTest::newRow("offers, stalled mid-body") << int(Kind::Offers) << Fault::StallMidBody << 0 << timedOut(Kind::Offers);
        QTest::newRow("profile, never answered") << int(Kind::Profile) << Fault::Stall << 0 << timedOut(Kind::Profile);
        QTest::newRow("ticket, never answered") << int(Kind::Ticket) << Fault::Stall << 0 << timedOut(Kind::Ticket);
        const QString overCap = QStringLiteral("offers request stopped: the reply exceeds 1048576 bytes");
        QTest::newRow("endless chunked body") << int(Kind::Offers) << Fault::EndlessBody << 0 << overCap;
        QTest::newRow("endless head") << int(Kind::Offers) << Fault::EndlessHeaders << 0
                                      << QStringLiteral("offers request stopped: the reply exceeds 262144 bytes");
        QTest::newRow("announced body over the cap") << int(Kind::Offers) << Fault::None << 3 * 1024 * 1024 << overCap;
        QTest::newRow("body under the cap") << int(Kind::Offers) << Fault::None << 900 * 1024 << QString();
    }

    // Each call ends once, later and on the GUI thread, however the transfer breaks: a
    // connection that drops or stalls, a body cut short, a reply with no end. A GET that a
    // kept connection lost before any byte of its reply goes once more, on a fresh
    // connection; a ticket never goes twice.
    void faultyTransfersEndOnce()
    {
        QFETCH(int, kind);
        QFETCH(HttpResponse::Fault, fault);
        QFETCH(int, bodyBytes);
        QFETCH(QString, warning);
        // A request that succeeded before must not leave a connection to be reused.
        CallbackProbe warmUp;
        start(Kind::Categories, warmUp);
        QTRY_VERIFY(warmUp.finished());
        const std::string padding(std::size_t(qMax(0, bodyBytes - 80)), ' ');
        m_server.respond([fault, padding](const HttpRequest &) {
            HttpResponse response = HttpResponse::json(201, R"({"offers":[{"name":"A"},{"name":"B"}],"ticket_id":1})" + padding);
            response.fault = fault;
            return response;
        });
        m_server.clearRequests();
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        api->setMaximumReplySize(1024 * 1024);
        // Only the time-out ends a stall; only the cap ends the rest.
        api->setTransferTimeout(warning.contains(QLatin1String("timed out")) ? std::chrono::milliseconds(400)
                                                                          : std::chrono::minutes(5));
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));

        CallbackProbe probe;
        start(Kind(kind), probe);
        QTRY_VERIFY(probe.finished());
        QCOMPARE(probe.successes, warning.isNull() ? 1 : 0);
        QCOMPARE(probe.failures, warning.isNull() ? 0 : 1);
        const auto sent = m_server.requests();
        // Resent when a kept connection lost it (the profile's plain http may have none kept).
        const bool resent = fault == HttpResponse::Fault::DropConnection && Kind(kind) != Kind::Ticket
            && sent.front().sequence > 0;
        QCOMPARE(int(sent.size()), resent ? 2 : 1);
        QVERIFY(resent || Kind(kind) == Kind::Profile || fault != HttpResponse::Fault::DropConnection
                || Kind(kind) == Kind::Ticket);
        // The ticket and the resend go on fresh connections; the warm one took the first.
        if (resent || Kind(kind) == Kind::Ticket)
            QCOMPARE(sent.back().sequence, 0);
        if (resent)
            QVERIFY(sent.front().sequence > 0);
        QVERIFY(!probe.ranBeforeReturn); // callbacks run later, on the GUI thread
        QVERIFY(!probe.ranOffGuiThread);

        // Nothing broken is reused: the next request goes on a connection that never failed.
        m_server.respond(200, "[]");
        m_server.clearRequests();
        CallbackProbe next;
        start(Kind::Categories, next);
        QTRY_VERIFY(next.finished());
        QCOMPARE(next.successes, 1);
        QCOMPARE(m_server.requestCount(), 1);
        if (!warning.isNull())
            QVERIFY(m_server.lastRequest().connection != sent.back().connection);
    }

    // Pages, filter changes and the history go on a kept connection: one round trip, not
    // three. One that the service closed while idle costs nothing; its requests are capped.
    void requestsShareKeptConnections()
    {
        m_server.respond(200, "{}");
        const auto one = [this](Kind kind) {
            CallbackProbe probe;
            start(kind, probe);
            return QTest::qWaitFor([&] { return probe.finished(); }, kPatienceMs) && probe.successes == 1;
        };
        QVERIFY(one(Kind::Offers));
        for (Kind kind : {Kind::Offers, Kind::Categories, Kind::History, Kind::Offers})
            QVERIFY(one(kind));
        const auto sent = m_server.requests();
        QCOMPARE(int(sent.size()), 5);
        for (const HttpRequest &request : sent)
            QCOMPARE(request.connection, sent.front().connection);
        QCOMPARE(sent.back().sequence, sent.front().sequence + 4);

        // Closed by the service after its answer, as an idle time-out does: the next
        // request finds that out before sending and goes on a new connection, once.
        m_server.respond([](const HttpRequest &) {
            HttpResponse response = HttpResponse::json(200, "[]");
            response.fault = HttpResponse::Fault::CloseAfterAnswer;
            return response;
        });
        m_server.clearRequests();
        QVERIFY(one(Kind::Categories));
        QVERIFY(one(Kind::Categories));
        QCOMPARE(m_server.requestCount(), 2);
        QVERIFY(m_server.requests()[0].connection != m_server.requests()[1].connection);

        // The ticket never rides a kept connection, nor leaves one behind.
        m_server.respond(201, R"({"ticket_id":7})");
        m_server.clearRequests();
        QVERIFY(one(Kind::Ticket));
        QVERIFY(one(Kind::Offers));
        QCOMPARE(m_server.requestCount(), 2);
        QVERIFY(m_server.requests()[0].connection != m_server.requests()[1].connection);
        QCOMPARE(m_server.requests()[0].sequence, 0);
    }

    // Over HTTP/2 (nghttpx terminating TLS with ALPN h2, in front of the scripted service)
    // the wall's requests share one connection, and replies read as over HTTP/1.1.
    void http2SharesOneConnectionAndReadsTheSame()
    {
        Http2Proxy h2(m_server.port());
        QVERIFY2(h2.isRunning(), qPrintable(h2.output()));
        LatencyRelay counter(h2.port(), std::chrono::milliseconds(0));
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        api->addCaCertificates(h2.caCertificates());
        const QString direct = m_server.baseAddress();
        const QString multiplexed = QStringLiteral("127.0.0.1:%1").arg(counter.port());
        const QByteArray page = R"({"offers":[{"offer_id":"1","name":"A","currency_count":5},{"name":"B"}]})";

        // The opening wall's offers, categories and history at once: one connection.
        m_server.respond(200, page);
        api->setServiceBaseAddress(multiplexed);
        CallbackProbe opening;
        for (Kind kind : {Kind::Offers, Kind::Categories, Kind::History, Kind::Offers})
            start(kind, opening);
        QTRY_COMPARE(opening.successes, 4);
        QCOMPARE(counter.connectionsAccepted(), 1);

        // Each status and body reads the same through either; so does a body cut short.
        auto outcome = [&](const QString &base, int status, const QByteArray &body, HttpResponse::Fault fault) {
            api->setServiceBaseAddress(base);
            m_server.respond([=](const HttpRequest &) {
                HttpResponse response = HttpResponse::json(status, body.toStdString());
                response.fault = fault;
                return response;
            });
            // Shared with the callbacks, which may come after a failed wait.
            auto result = std::make_shared<QString>(QStringLiteral("none"));
            api->fetchOffers(0, {}, {}, false, [result](const QList<QVOffer> &offers, bool more) {
                *result = QStringLiteral("%1 offers, more %2").arg(offers.size()).arg(more);
            }, [result] { *result = QStringLiteral("failed"); });
            if (!QTest::qWaitFor([&] { return *result != QLatin1String("none"); }, kPatienceMs))
                return QStringLiteral("no callback");
            return *result;
        };
        using Fault = HttpResponse::Fault;
        const struct { int status; QByteArray body; Fault fault; } replies[] = {
            {200, page, Fault::None}, {204, "", Fault::None}, {404, R"({"error":"no"})", Fault::None},
            {500, "<html>down</html>", Fault::None}, {200, page, Fault::TruncateBody}};
        for (const auto &reply : replies) {
            const QString overHttp1 = outcome(direct, reply.status, reply.body, reply.fault);
            QCOMPARE(outcome(multiplexed, reply.status, reply.body, reply.fault), overHttp1);
        }
        QCOMPARE(outcome(multiplexed, 200, page, Fault::TruncateBody), QStringLiteral("failed"));

        // A kept connection that the network dropped while idle costs no failure.
        counter.dropIdleConnections();
        QCOMPARE(outcome(multiplexed, 200, page, Fault::None), QStringLiteral("2 offers, more 1"));
        QVERIFY(counter.connectionsAccepted() >= 2);
        QVERIFY(counter.mostOpenAtOnce() <= quorva::detail::KeptConnections::kMaximumConnections + quorva::detail::KeptConnections::kMaximumPlainConnections);
    }

    void serviceAddressSaysWhatIsWrong_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("used");
        QTest::addColumn<QString>("warning"); // empty: none
        QTest::newRow("host and port") << "api.example.com:8443" << "api.example.com:8443" << "";
        QTest::newRow("a scheme in front") << "https://api.example.com" << "api.example.com"
            << "service address https://api.example.com takes no scheme: using api.example.com";
        QTest::newRow("a path") << "api.example.com/v2" << "api.example.com/v2"
            << "service address api.example.com/v2 is not \"host\" or \"host:port\": requests to it fail";
    }

    void serviceAddressSaysWhatIsWrong()
    {
        QFETCH(QString, written);
        QFETCH(QString, used);
        QFETCH(QString, warning);
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(written);
        QCOMPARE(QuorvaRestAPI::sharedInstance()->serviceBaseAddress(), used);
    }

    void refusedConnectionFails()
    {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const quint16 port = closed.serverPort();
        closed.close();
        configure(QStringLiteral("127.0.0.1:%1").arg(port));
        CallbackProbe probe;
        QTest::ignoreMessage(QtWarningMsg, "categories request failed: the service refused the connection: nothing "
                                           "listens at that host and port");
        start(Kind::Categories, probe);
        QTRY_VERIFY(probe.finished());
        QCOMPARE(probe.failures, 1);
        QVERIFY(!probe.ranBeforeReturn);
    }

    void untrustedServerFails()
    {
        // A server whose authority the host never added: the TLS check refuses it.
        ScriptedServer stranger;
        stranger.respond(200, R"({"offers":[{"name":"A"}]})");
        configure(stranger.baseAddress());
        CallbackProbe probe;
        // The developer is told the cause, not only the user "No Connection".
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                               "^offers request failed: the service's certificate is not trusted "
                                               "\\(SSL certificate problem: .+\\): add its certificate authority "
                                               "\\(QuorvaRestAPI::addCaCertificates, or caCertificatesFile in QML\\)$")));
        start(Kind::Offers, probe);
        QTRY_VERIFY(probe.finished());
        QCOMPARE(probe.failures, 1);
        QCOMPARE(stranger.requestCount(), 0);
        // The same request over plain http reaches it: only trust failed.
        start(Kind::Profile, probe);
        QTRY_COMPARE(probe.successes, 1);
    }

    void absentRequiredValueStopsTheProgram_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("message");
        QTest::newRow("offers without subId1") << "subId1" << "QuorvaRestAPI::fetchOffers: subId1 must be set";
        QTest::newRow("ticket without name") << "name" << "QuorvaRestAPI::createSupportTicket: name must be set";
        QTest::newRow("ticket without e-mail") << "emailId" << "QuorvaRestAPI::createSupportTicket: emailId must be set";
        QTest::newRow("ticket without subject") << "subject" << "QuorvaRestAPI::createSupportTicket: subject must be set";
    }

    void absentRequiredValueStopsTheProgram()
    {
        QFETCH(QString, missing);
        QFETCH(QString, message);
        QProcess probe;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("quorva.info=false"));
        probe.setProcessEnvironment(environment);
        probe.start(QStringLiteral(QUORVA_REQUIRED_VALUE_PROBE), {missing});
        QVERIFY(probe.waitForFinished(30000));
        const QString errors = QString::fromLocal8Bit(probe.readAllStandardError());
        QCOMPARE(probe.exitStatus(), QProcess::CrashExit);
        QVERIFY2(errors.contains(message), qPrintable(errors));
        QVERIFY(!probe.readAllStandardOutput().contains("request accepted"));
    }

    void requestsGoOutAsWritten_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("percent escape kept") << "%41";
        QTest::newRow("escaped text kept") << "caf%C3%A9";
        QTest::newRow("plus kept") << "a+b";
        QTest::newRow("equals sign kept") << "k=v";
        QTest::newRow("path-like") << "../x/./y";
    }

    void requestsGoOutAsWritten()
    {
        QFETCH(QString, value);
        QuorvaRestAPI::sharedInstance()->setSubId2(value);
        CallbackProbe probe;
        start(Kind::Offers, probe);
        QTRY_VERIFY(probe.finished());
        const HttpRequest offers = m_server.lastRequest();
        QVERIFY2(offers.query.find("subid2=" + value.toStdString()) != std::string::npos, offers.query.c_str());
    }

    void unsendableAddressesFailWithoutSending_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("blank") << "a b";
        QTest::newRow("not ASCII") << QStringLiteral("caf\u00e9");
        QTest::newRow("fragment sign") << "a#b";
        QTest::newRow("broken percent escape") << "100%";
        QTest::newRow("tab") << "a\tb";
        QTest::newRow("angle bracket") << "<b>";
    }

    void unsendableAddressesFailWithoutSending()
    {
        QFETCH(QString, value);
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        api->setSubId1(QStringLiteral("private-user"));
        api->setSubId2(value);
        api->setAdvertisingInfoProvider([] { return QVAdvertisingInfo{QStringLiteral("6F9619FF-8B86-D011-B42D-00CF4FC964FF"), true}; });
        // The whole line, so it names the request and carries none of the values.
        QTest::ignoreMessage(QtWarningMsg, "offers request not sent: its address holds a character that cannot stand unescaped");
        CallbackProbe probe;
        start(Kind::Offers, probe);
        QTRY_VERIFY(probe.finished());
        QCOMPARE(probe.failures, 1);
        QVERIFY(!probe.ranBeforeReturn);
        QCOMPARE(m_server.requestCount(), 0);
    }

private:
    enum class Kind { Offers, Profile, Categories, History, Ticket };

    void configure(const QString &base)
    {
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        api->setServiceBaseAddress(base);
        api->setPubId(QStringLiteral("pub1"));
        api->setCorvelId(QStringLiteral("wall2"));
        api->setSubId1(QStringLiteral("user3"));
        setTargeting(api);
        api->setAdvertisingInfoProvider(nullptr);
        api->setPrivacy({});
    }

    // Starts one request of the given kind; the probe counts its callbacks.
    void start(Kind kind, CallbackProbe &probe)
    {
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        auto success = [&probe] { probe.note(); ++probe.successes; };
        switch (kind) {
        case Kind::Offers:
            api->fetchOffers(0, {}, {}, false, [success](const QList<QVOffer> &, bool) { success(); }, probe.failure());
            break;
        case Kind::Profile:
            api->fetchProfile([success](const QVProfile &) { success(); }, probe.failure());
            break;
        case Kind::Categories:
            api->fetchCategories([success](const QList<QVCategory> &) { success(); }, probe.failure());
            break;
        case Kind::History:
            api->fetchHistory([success](const QList<QVTransaction> &) { success(); }, probe.failure());
            break;
        case Kind::Ticket:
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^params: ")));
            api->createSupportTicket(QStringLiteral("Ann"), QStringLiteral("ann@example.com"), QStringLiteral("1"),
                                     QStringLiteral("hello"), {}, {}, [success](const QVariant &) { success(); },
                                     probe.failure());
            break;
        }
        probe.requestReturned = true;
    }

    ScriptedServer m_server;
};

QTEST_GUILESS_MAIN(tst_QuorvaRestAPI)
#include "tst_QuorvaRestAPI.moc"
