// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Building offer records from a reply, against parsing the same bytes with
// QJsonDocument::fromJson alone: a real sandbox page of 30 offers, and a body of 3,000.
#include "BenchSupport.h"
#include "ReplyParsers.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslConfiguration>

namespace {
constexpr double kGoalRatio = 1.3;

QByteArray fetch(QNetworkAccessManager &network, const SandboxProcess &sandbox, const QString &wall, int offset, int limit)
{
    QNetworkRequest request(QUrl(QStringLiteral("https://%1/corvel/api/publisher/1042/profile/%2/offers.json?subid1=u"
                                                "&limit=%3&offset=%4")
                                     .arg(sandbox.baseAddress(), wall)
                                     .arg(limit)
                                     .arg(offset)));
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.addCaCertificates(sandbox.caCertificates());
    request.setSslConfiguration(trust);
    QNetworkReply *reply = network.get(request);
    bench::waitUntil([reply] { return reply->isFinished(); });
    reply->deleteLater();
    return reply->readAll();
}

// Median microseconds of one call over rounds of a fixed number of calls.
template <typename Work>
double microsPerCall(Work work, int perRound)
{
    for (int i = 0; i < perRound; ++i)
        work(); // warm caches and allocators
    std::vector<double> rounds;
    for (int round = 0; round < 15; ++round) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < perRound; ++i)
            work();
        rounds.push_back(double(timer.nsecsElapsed()) / 1000.0 / perRound);
    }
    return bench::median(rounds);
}

void compare(const char *what, const QByteArray &body, int perRound)
{
    qsizetype sink = 0;
    const double parse = microsPerCall([&] { sink += QJsonDocument::fromJson(body).object().size(); }, perRound);
    const double build = microsPerCall([&] { sink += quorva::detail::parseOffers(body).size(); }, perRound);
    std::printf("%s: %lld bytes, fromJson %.1f us, records %.1f us [%lld]\n", what,
                static_cast<long long>(body.size()), parse, build, static_cast<long long>(sink));
    bench::verdict(what, build / parse, kGoalRatio, "x", QStringLiteral("records / fromJson of the same bytes"));
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 1;
    QNetworkAccessManager network;
    const QByteArray page = fetch(network, sandbox, QStringLiteral("7"), 0, 30);

    QJsonArray all;
    for (int offset = 0; offset < 3000; offset += 100) {
        const QJsonArray part = QJsonDocument::fromJson(fetch(network, sandbox, QStringLiteral("9"), offset, 100))
                                    .object().value(QStringLiteral("offers")).toArray();
        for (const QJsonValue &offer : part)
            all.append(offer);
    }
    const QByteArray large = QJsonDocument(QJsonObject{{QStringLiteral("offers"), all}}).toJson(QJsonDocument::Compact);
    if (page.isEmpty() || all.size() != 3000) {
        std::printf("could not fetch the pages from the sandbox\n");
        return 1;
    }
    compare("records of a 30-offer sandbox page", page, 2000);
    compare("records of a 3,000-offer body", large, 20);
    return 0;
}
