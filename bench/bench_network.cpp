// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// The wall's requests at a phone network's round trip: a relay delays each direction by
// half of 100 ms in front of the sandbox. Each figure is in round trips, beside what a bare
// curl of the same address on a kept connection takes in the same run.

#include "BenchSupport.h"
#include "HttpTransport.h"
#include "LatencyRelay.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace {
constexpr std::chrono::milliseconds kRoundTrip{100};
constexpr int kRuns = 7;

double roundTrips(double milliseconds)
{
    return milliseconds / double(kRoundTrip.count());
}

// What bare curl takes for the same address: a request on a fresh connection, and one on
// the connection the first left open. Seconds as curl reports them.
struct CurlTimes
{
    double connected = 0; // TCP and TLS done, on the fresh connection
    double fresh = 0;
    double kept = 0;
};

CurlTimes bareCurl(const QString &url, const QString &caFile)
{
    QProcess curl;
    curl.start(QStringLiteral("curl"), {QStringLiteral("-s"), QStringLiteral("--cacert"), caFile,
                                        QStringLiteral("-o"), QStringLiteral("/dev/null"), QStringLiteral("-o"),
                                        QStringLiteral("/dev/null"), QStringLiteral("-w"),
                                        QStringLiteral("%{time_appconnect} %{time_total}\\n"), url, url});
    curl.waitForFinished(60000);
    const QList<QByteArray> lines = curl.readAllStandardOutput().trimmed().split('\n');
    if (lines.size() != 2)
        return {};
    const QList<QByteArray> first = lines[0].split(' ');
    const QList<QByteArray> second = lines[1].split(' ');
    return {first.value(0).toDouble() * 1000, first.value(1).toDouble() * 1000, second.value(1).toDouble() * 1000};
}

// Milliseconds from the calls until every one of them has called back.
double timeOf(const std::function<void(std::function<void()> done)> &calls, int count)
{
    int finished = 0;
    QElapsedTimer timer;
    timer.start();
    calls([&finished] { ++finished; });
    if (!bench::waitUntil([&] { return finished == count; }))
        return -1;
    return double(timer.nsecsElapsed()) / 1e6;
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    SandboxProcess sandbox;
    if (!sandbox.isRunning())
        return 1;
    LatencyRelay relay(sandbox.port(), kRoundTrip);
    QuorvaRestAPI *api = bench::useSandbox(sandbox);
    api->setServiceBaseAddress(QStringLiteral("127.0.0.1:%1").arg(relay.port()));

    QTemporaryDir dir;
    const QString caFile = dir.filePath(QStringLiteral("ca.pem"));
    QFile ca(caFile);
    if (!ca.open(QIODevice::WriteOnly))
        return 1;
    for (const QSslCertificate &certificate : sandbox.caCertificates())
        ca.write(certificate.toPem());
    ca.close();
    const QString page = QStringLiteral("/corvel/api/publisher/1042/profile/7/offers.json?subid1=user-1&limit=30&offset=30");
    const CurlTimes direct = bareCurl(QStringLiteral("https://%1%2").arg(sandbox.baseAddress(), page), caFile);
    std::vector<CurlTimes> curls;
    for (int run = 0; run < kRuns; ++run)
        curls.push_back(bareCurl(QStringLiteral("https://127.0.0.1:%1%2").arg(relay.port()).arg(page), caFile));
    auto medianOf = [&curls](double CurlTimes::*field) {
        std::vector<double> values;
        for (const CurlTimes &c : curls)
            values.push_back(c.*field);
        return bench::median(values);
    };
    const double service = direct.kept;
    const double setUp = medianOf(&CurlTimes::connected);
    std::printf("round trip %lld ms; the service answers a page in %.1f ms; bare curl: a connection is up in %.1f ms "
                "(%.2f round trips), a page on it %.1f ms (%.2f), a page on a kept connection %.1f ms (%.2f)\n",
                static_cast<long long>(kRoundTrip.count()), service, setUp, roundTrips(setUp), medianOf(&CurlTimes::fresh),
                roundTrips(medianOf(&CurlTimes::fresh)), medianOf(&CurlTimes::kept), roundTrips(medianOf(&CurlTimes::kept)));

    // The wall's first page, no preload, nothing kept: the profile and the first page at once.
    std::vector<double> opening;
    for (int run = 0; run < kRuns; ++run) {
        relay.dropIdleConnections();
        opening.push_back(timeOf([&](auto done) {
            api->fetchProfile([done](const QVProfile &) { done(); }, done);
            api->fetchOffers(0, {}, {}, false, [done](const QList<QVOffer> &, bool) { done(); }, done);
        }, 2));
    }
    // Then what the user waits for on a warm connection.
    auto warm = [&](const std::function<void(std::function<void()> done)> &call) {
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run)
            times.push_back(timeOf(call, 1));
        return bench::median(times);
    };
    const double nextPage = warm([&](auto done) {
        api->fetchOffers(30, {}, {}, false, [done](const QList<QVOffer> &, bool) { done(); }, done);
    });
    const double filterChange = warm([&](auto done) {
        api->fetchOffers(0, QStringLiteral("payout"), QStringLiteral("1"), false,
                         [done](const QList<QVOffer> &, bool) { done(); }, done);
    });
    const double history = warm([&](auto done) {
        api->fetchHistory([done](const QList<QVTransaction> &) { done(); }, done);
    });

    const double firstWall = bench::median(opening);
    const QString warmGoal = QStringLiteral("1.2 round trips + the service's %1 ms").arg(service, 0, 'f', 1);
    const double warmLimit = 1.2 * double(kRoundTrip.count()) + service;
    std::printf("first wall, no preload: %.1f ms (%.2f round trips, %.2f after the connection is up)\n", firstWall,
                roundTrips(firstWall), roundTrips(firstWall - setUp));
    bench::verdict("first wall after its connection is up", firstWall - setUp, 2.0 * double(kRoundTrip.count()) + service,
                   "ms", QStringLiteral("2 round trips + the service's time"));
    bench::verdict("a further page on a kept connection", nextPage, warmLimit, "ms", warmGoal);
    bench::verdict("a filter change on a kept connection", filterChange, warmLimit, "ms", warmGoal);
    bench::verdict("the history on a kept connection", history, warmLimit, "ms", warmGoal);
    bench::verdict("connections open at once", relay.mostOpenAtOnce(), quorva::detail::KeptConnections::kMaximumConnections + quorva::detail::KeptConnections::kMaximumPlainConnections,
                   "", QStringLiteral("the pool's bound"));
    std::printf("connections the relay was asked for: %d\n", relay.connectionsAccepted());
    return 0;
}
