// Parsing one 30-offer page into records, as the worker pool does for every page.
#include "BenchSupport.h"
#include "ReplyParsers.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QJsonArray offers;
    for (int i = 0; i < 30; ++i) {
        offers.append(QJsonObject{
            {QStringLiteral("offer_id"), QString::number(1000 + i)},
            {QStringLiteral("name"), QStringLiteral("Dragon Realms %1").arg(i)},
            {QStringLiteral("description"), QStringLiteral("Install and reach level %1 within seven days of installing").arg(i)},
            {QStringLiteral("currency_count"), 150 * i},
            {QStringLiteral("image_url"), QStringLiteral("//127.0.0.1:8443/img/%1.png").arg(i)},
            {QStringLiteral("click_url"), QStringLiteral("http://127.0.0.1:8443/click/%1").arg(i)},
            {QStringLiteral("category_id"), 1},
            {QStringLiteral("featured"), false},
        });
    }
    const QByteArray page = QJsonDocument(QJsonObject{{QStringLiteral("offers"), offers}}).toJson(QJsonDocument::Compact);

    constexpr int kWarmup = 200;
    constexpr int kRounds = 20;
    constexpr int kPerRound = 500;
    for (int i = 0; i < kWarmup; ++i)
        quorva::detail::parseOffers(page);
    std::vector<double> microsPerPage;
    qsizetype sink = 0;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < kPerRound; ++i)
            sink += quorva::detail::parseOffers(page).size();
        microsPerPage.push_back(double(timer.nsecsElapsed()) / 1000.0 / kPerRound);
    }
    std::printf("parse 30-offer page (%lld bytes): median %.1f us, p99 %.1f us  [%lld offers parsed]\n",
                static_cast<long long>(page.size()), bench::percentile(microsPerPage, 0.5),
                bench::percentile(microsPerPage, 0.99), static_cast<long long>(sink));
    return 0;
}
