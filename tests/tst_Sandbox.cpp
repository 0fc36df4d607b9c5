// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Patience.h"
#include "CallbackProbe.h"
#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

namespace {
struct RawReply
{
    int status = 0;
    QByteArray body;
    QJsonValue json() const
    {
        const QJsonDocument d = QJsonDocument::fromJson(body);
        return d.isArray() ? QJsonValue(d.array()) : QJsonValue(d.object());
    }
};
} // namespace

namespace {
// The status line's code of whatever the server answers to these raw bytes over http.
int rawStatus(quint16 port, const QByteArray &bytes)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    if (!socket.waitForConnected(5000))
        return -1;
    socket.write(bytes);
    QByteArray answer;
    while (!answer.contains("\r\n") && socket.waitForReadyRead(10000))
        answer += socket.readAll();
    const QList<QByteArray> words = answer.left(answer.indexOf("\r\n")).split(' ');
    return words.size() >= 2 ? words[1].toInt() : 0;
}
} // namespace

// The sandbox service, exercised over real sockets with the real client where it can be.
class tst_Sandbox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_sandbox = std::make_unique<SandboxProcess>();
        QVERIFY2(m_sandbox->isRunning(), "the sandbox did not start");
        QVERIFY(!m_sandbox->caCertificates().isEmpty());
        QuorvaRestAPI::sharedInstance()->addCaCertificates(m_sandbox->caCertificates());
    }

    void init()
    {
        useSandbox(*m_sandbox);
    }

    void badInputIsRejectedAndNothingStored_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        const QString offers = QStringLiteral("/corvel/api/publisher/1042/profile/7/offers.json");
        const QString tickets = QStringLiteral("/corvel/api/publisher/1042/profile/7/user/u9/tickets.json");
        QTest::newRow("unknown publisher") << "/corvel/api/publisher/nobody/profile/7/offers.json?subid1=u" << QByteArray() << 404;
        QTest::newRow("missing subid1") << offers + "?limit=30" << QByteArray() << 400;
        QTest::newRow("limit not a number") << offers + "?subid1=u&limit=lots" << QByteArray() << 400;
        QTest::newRow("unknown sort") << offers + "?subid1=u&sort_by=random" << QByteArray() << 400;
        QTest::newRow("ticket not json") << tickets << QByteArray("name=Ann") << 400;
        QTest::newRow("ticket is a list") << tickets << QByteArray("[]") << 400;
        QTest::newRow("ticket lacks email") << tickets << QByteArray(R"({"name":"Ann","subject_id":"1"})") << 422;
        QTest::newRow("ticket for unknown wall") << "/corvel/api/publisher/1042/profile/99/user/u/tickets.json"
                                                 << QByteArray(R"({"name":"A","email":"a@b.c","subject_id":"1"})") << 404;
        QTest::newRow("no such endpoint") << "/corvel/nothing.json" << QByteArray() << 404;
        QTest::newRow("picture id past any number") << "/img/99999999999999999999.png" << QByteArray() << 404;
        QTest::newRow("click id past any number") << "/click/99999999999999999999999999999999" << QByteArray() << 404;
        const QString credits = QStringLiteral("/sandbox/publisher/1042/profile/7/user/u9/credits.json");
        QTest::newRow("credit not json") << credits << QByteArray("500") << 400;
        QTest::newRow("credit without a name") << credits << QByteArray(R"({"currency_adjustment":5})") << 400;
        QTest::newRow("credit amount as text") << credits << QByteArray(R"({"offer_name":"A","currency_adjustment":"5"})") << 400;
        QTest::newRow("credit for unknown wall") << "/sandbox/publisher/1042/profile/99/user/u9/credits.json"
                                                 << QByteArray(R"({"offer_name":"A","currency_adjustment":5})") << 404;
    }

    void badInputIsRejectedAndNothingStored()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, body); // a GET without one, a POST with it
        QFETCH(int, status);
        const int ticketsBefore = raw("GET", QStringLiteral("/sandbox/tickets.json")).json()[QStringLiteral("tickets")].toArray().size();
        const RawReply reply = raw(body.isEmpty() ? "GET" : "POST", path, body);
        QCOMPARE(reply.status, status);
        QVERIFY2(!reply.json()[QStringLiteral("error")].toString().isEmpty(), reply.body.constData());
        QCOMPARE(raw("GET", QStringLiteral("/sandbox/tickets.json")).json()[QStringLiteral("tickets")].toArray().size(), ticketsBefore);
        QCOMPARE(raw("GET", QStringLiteral("/corvel/api/publisher/1042/profile/7/user/u9/transactions.json")).status, 204);
    }

    // Tickets are kept across a restart, their texts byte for byte (a NUL, accents, emoji).
    void ticketsSurviveARestart()
    {
        const QString message = QStringLiteral("before") + QChar(0) + QStringLiteral("after \u00e9\U0001F600");
        QTemporaryDir data;
        QVariant firstId;
        QVariant secondId;
        CallbackProbe probe;
        {
            SandboxProcess first({}, data.path());
            QVERIFY(first.isRunning());
            QuorvaRestAPI::sharedInstance()->addCaCertificates(first.caCertificates());
            useSandbox(first);
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^params: ")));
            QuorvaRestAPI::sharedInstance()->createSupportTicket(QStringLiteral("Ann"), QStringLiteral("ann@example.com"),
                QStringLiteral("1"), message, QStringLiteral("Dragon Realms"), QStringLiteral("11/02/2026"),
                [&](const QVariant &id) { ++probe.successes; firstId = id; }, probe.failure());
            QTRY_COMPARE(probe.successes, 1);
        }
        SandboxProcess second({}, data.path());
        QVERIFY(second.isRunning());
        useSandbox(second);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^params: ")));
        QuorvaRestAPI::sharedInstance()->createSupportTicket(QStringLiteral("Bob"), QStringLiteral("bob@example.com"),
            QStringLiteral("3"), {}, {}, {}, [&](const QVariant &id) { ++probe.successes; secondId = id; }, probe.failure());
        QTRY_COMPARE(probe.successes, 2);
        QCOMPARE(secondId.toLongLong(), firstId.toLongLong() + 1);

        const QJsonArray stored = raw("GET", QStringLiteral("/sandbox/tickets.json"), {}, &second).json()[QStringLiteral("tickets")].toArray();
        QCOMPARE(stored.size(), 2);
        QCOMPARE(stored[0][QStringLiteral("name")].toString(), QStringLiteral("Ann"));
        QCOMPARE(stored[0][QStringLiteral("message")].toString(), message); // byte for byte
        QCOMPARE(stored[0][QStringLiteral("offer_name")].toString(), QStringLiteral("Dragon Realms"));
        QCOMPARE(stored[0][QStringLiteral("user")].toString(), QStringLiteral("user-1"));
        QVERIFY(!stored[1].toObject().contains(QStringLiteral("message")));
    }

    // A phone on the laptop's network reaches the sandbox by the laptop's address or name:
    // its certificate names them, under the CA the phone already trusts.
    void certificateNamesTheAddressesAPhoneUses()
    {
        QTemporaryDir data;
        const QStringList names{QStringLiteral("--address"), QStringLiteral("127.0.0.2"),
                                QStringLiteral("--name"), QStringLiteral("laptop.example"),
                                QStringLiteral("--name"), QStringLiteral("10.0.0.7")};
        auto served = [&data] {
            return QSslCertificate::fromPath(data.filePath(QStringLiteral("server-cert.pem"))).value(0);
        };
        auto dnsNames = [&served] {
            QStringList dns = served().subjectAlternativeNames().values(QSsl::DnsEntry);
            dns.sort();
            return dns;
        };
        QList<QSslCertificate> authority;
        {
            SandboxProcess sandbox(names, data.path());
            QVERIFY(sandbox.isRunning());
            authority = sandbox.caCertificates();
            const auto sans = served().subjectAlternativeNames();
            QCOMPARE(dnsNames(), (QStringList{"laptop.example", "localhost"}));
            QCOMPARE(sans.values(QSsl::IpAddressEntry).size(), 4); // loopback both ways, 127.0.0.2, 10.0.0.7
            QVERIFY(sans.values(QSsl::IpAddressEntry).contains(QStringLiteral("127.0.0.2")));

            // Over TLS to the second loopback address, the certificate checked.
            QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
            api->addCaCertificates(authority);
            api->setServiceBaseAddress(QStringLiteral("127.0.0.2:%1").arg(sandbox.port()));
            CallbackProbe probe;
            api->fetchCategories([&](const QList<QVCategory> &categories) { probe.successes += categories.isEmpty() ? 0 : 1; },
                                 probe.failure());
            QTRY_VERIFY(probe.finished());
            QCOMPARE(probe.successes, 1);
        }
        // Other names: a new server certificate, under the same CA.
        const QSslCertificate before = served();
        SandboxProcess renamed({QStringLiteral("--name"), QStringLiteral("other.example")}, data.path());
        QVERIFY(renamed.isRunning());
        QCOMPARE(renamed.caCertificates(), authority);
        QVERIFY(served() != before);
        QCOMPARE(dnsNames(), (QStringList{"localhost", "other.example"}));
    }

    // The sandbox keeps connections alive, up to a number of requests each, and can close
    // one while idle or under a request; the client's pages come through every time.
    void keptConnectionsAndTheirFaults_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("expected"); // "connection/request" of each line logged
        QTest::newRow("kept") << QStringList() << QStringList{"1/1", "1/2", "1/3"};
        QTest::newRow("two requests a connection") << QStringList{"--requests-per-connection", "2"}
                                                   << QStringList{"1/1", "1/2", "2/1"};
        QTest::newRow("closed while idle") << QStringList{"--close-idle"} << QStringList{"1/1", "2/1", "3/1"};
        // Hung up on under the second request: sent once more, on a fresh connection.
        QTest::newRow("dropped under a request") << QStringList{"--drop-reused"}
                                                 << QStringList{"1/1", "1/2", "2/1", "2/2", "3/1"};
    }

    void keptConnectionsAndTheirFaults()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, expected);
        QTemporaryDir logs;
        const QString log = logs.filePath(QStringLiteral("requests.log"));
        SandboxProcess sandbox(arguments + QStringList{QStringLiteral("--request-log"), log});
        QVERIFY(sandbox.isRunning());
        QuorvaRestAPI::sharedInstance()->addCaCertificates(sandbox.caCertificates());
        useSandbox(sandbox);
        for (int page = 0; page < 3; ++page) {
            CallbackProbe probe;
            QuorvaRestAPI::sharedInstance()->fetchCategories([&](const QList<QVCategory> &) { ++probe.successes; },
                                                             probe.failure());
            QTRY_VERIFY(probe.finished());
            QCOMPARE(probe.successes, 1);
        }
        QFile file(log);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QRegularExpression where(QStringLiteral(R"(connection (\d+) request (\d+))"));
        QStringList seen;
        for (const QByteArray &line : file.readAll().split('\n')) {
            const auto match = where.match(QString::fromUtf8(line));
            if (match.hasMatch())
                seen.append(match.captured(1) + u'/' + match.captured(2));
        }
        QCOMPARE(seen, expected);
    }

    // An app for children never lists the casino's offers, through the client as raw.
    void aChildIsOfferedNothingOfTheCasino()
    {
        const QString casino = QStringLiteral("/corvel/api/publisher/1042/profile/7/offers.json?subid1=u&limit=100&category_id=8");
        QCOMPARE(raw("GET", casino).status, 200);
        QCOMPARE(raw("GET", casino + QStringLiteral("&coppa=0")).status, 200);
        QCOMPARE(raw("GET", casino + QStringLiteral("&coppa=1")).status, 204);

        QVPrivacy child;
        child.childDirected = QVPrivacy::Answer::Yes;
        QuorvaRestAPI::sharedInstance()->setPrivacy(child);
        const auto adults = qScopeGuard([] { QuorvaRestAPI::sharedInstance()->setPrivacy({}); });
        QStringList names;
        bool more = true;
        for (quint64 offset = 0; more; offset += 30) {
            CallbackProbe probe;
            QuorvaRestAPI::sharedInstance()->fetchOffers(offset, {}, {}, false, [&](const QList<QVOffer> &offers, bool m) {
                ++probe.successes;
                more = m;
                for (const QVOffer &offer : offers)
                    names.append(offer.offerName());
            }, probe.failure());
            QTRY_VERIFY(probe.finished());
            QCOMPARE(probe.successes, 1);
        }
        QVERIFY(names.size() > 200);
        QVERIFY(!names.contains(QStringLiteral("Spin City Slots")));
    }

    void creditsComeFirstInTheHistory()
    {
        const QString history = QStringLiteral("/corvel/api/publisher/1042/profile/7/user/u-credit/transactions.json");
        const QString credits = QStringLiteral("/sandbox/publisher/1042/profile/7/user/u-credit/credits.json");
        QCOMPARE(raw("GET", history).status, 204);
        QCOMPARE(raw("POST", credits, R"({"offer_name":"First","currency_adjustment":500})").status, 201);
        QCOMPARE(raw("POST", credits, R"({"offer_name":"Second","currency_adjustment":-20})").status, 201);
        const QJsonArray rows = raw("GET", history).json()[QStringLiteral("transactions")].toArray();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0][QStringLiteral("offer_name")].toString(), QStringLiteral("Second"));
        QCOMPARE(rows[0][QStringLiteral("currency_adjustment")].toInt(), -20);
        QCOMPARE(rows[1][QStringLiteral("offer_name")].toString(), QStringLiteral("First"));
        const QDateTime stamped = QDateTime::fromString(rows[1][QStringLiteral("timestamp")].toString(), Qt::ISODate);
        QVERIFY(qAbs(stamped.secsTo(QDateTime::currentDateTimeUtc())) < 600);
    }

    void stalledPeersAreClosedAndServingGoesOn()
    {
        // Few file handles and short time-outs: more stalled peers than handles, at once.
        SandboxProcess sandbox({QStringLiteral("--handshake-timeout"), QStringLiteral("400"),
                                QStringLiteral("--header-timeout"), QStringLiteral("400"),
                                QStringLiteral("--body-timeout"), QStringLiteral("400")},
                               {}, 48);
        QVERIFY(sandbox.isRunning());
        std::vector<std::unique_ptr<QTcpSocket>> peers;
        const QByteArray halfRequest = "GET /corvel/categories.json?visibility=1 HTTP/1.1\r\nHost: x\r\n";
        const QByteArray halfBody = "POST /corvel/api/publisher/1042/profile/7/user/u/tickets.json HTTP/1.1\r\n"
                                    "Host: x\r\nContent-Length: 100\r\n\r\n{\"name\"";
        const QByteArray halfHandshake = QByteArray::fromHex("160301020001");
        for (int i = 0; i < 80; ++i) {
            auto socket = std::make_unique<QTcpSocket>();
            socket->connectToHost(QHostAddress::LocalHost, sandbox.port());
            QVERIFY(socket->waitForConnected(5000));
            const QByteArray opening[] = {{}, halfRequest, halfBody, halfHandshake};
            socket->write(opening[i % 4]);
            socket->flush();
            peers.push_back(std::move(socket));
        }
        // The server closes every stalled peer by itself...
        QTRY_VERIFY_WITH_TIMEOUT(std::all_of(peers.begin(), peers.end(), [](const auto &socket) {
            return socket->state() == QAbstractSocket::UnconnectedState;
        }), kPatienceMs);
        // ...and keeps serving.
        QVERIFY(sandbox.processAlive());
        QCOMPARE(raw("GET", QStringLiteral("/corvel/categories.json?visibility=1"), {}, &sandbox).status, 200);
    }

    void malformedRequestsAreAnswered_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("status");
        QTest::newRow("not http") << QByteArray("HELLO THERE\r\n\r\n") << 400;
        QTest::newRow("bad content length") << QByteArray("POST /x HTTP/1.1\r\nHost: x\r\nContent-Length: lots\r\n\r\n") << 400;
        QTest::newRow("target too long") << "GET /" + QByteArray(40000, 'a') + " HTTP/1.1\r\nHost: x\r\n\r\n" << 414;
        QTest::newRow("header too large")
            << "GET /img/5.png HTTP/1.1\r\nHost: x\r\nX-Big: " + QByteArray(40000, 'b') + "\r\n\r\n" << 431;
        QTest::newRow("body too large")
            << QByteArray("POST /corvel/api/publisher/1042/profile/7/user/u/tickets.json HTTP/1.1\r\n"
                          "Host: x\r\nContent-Length: 50000000\r\n\r\n{") << 413;
    }

    void malformedRequestsAreAnswered()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, status);
        QCOMPARE(rawStatus(m_sandbox->port(), bytes), status);
    }

private:
    RawReply raw(const QByteArray &verb, const QString &path, const QByteArray &body = {},
                 const SandboxProcess *sandbox = nullptr)
    {
        const SandboxProcess &target = sandbox ? *sandbox : *m_sandbox;
        QNetworkRequest request(QUrl(QStringLiteral("https://%1%2").arg(target.baseAddress(), path)));
        QSslConfiguration ssl = QSslConfiguration::defaultConfiguration();
        ssl.addCaCertificates(target.caCertificates());
        request.setSslConfiguration(ssl);
        request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
        QNetworkReply *reply = m_network.sendCustomRequest(request, verb, body);
        QSignalSpy finished(reply, &QNetworkReply::finished);
        finished.wait(10000);
        RawReply result{reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll()};
        reply->deleteLater();
        return result;
    }

    void useSandbox(const SandboxProcess &sandbox)
    {
        QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
        api->setServiceBaseAddress(sandbox.baseAddress());
        api->setPubId(QStringLiteral("1042"));
        api->setCorvelId(QStringLiteral("7"));
        api->setSubId1(QStringLiteral("user-1"));
    }

    std::unique_ptr<SandboxProcess> m_sandbox;
    QNetworkAccessManager m_network;
};

QTEST_GUILESS_MAIN(tst_Sandbox)
#include "tst_Sandbox.moc"
