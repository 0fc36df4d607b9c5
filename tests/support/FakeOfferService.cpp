// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "FakeOfferService.h"

#include <algorithm>
#include <cstdlib>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <QuorvaMedia/QuorvaRestAPI.h>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

FakeOfferService::FakeOfferService() : m_closeKeptAtRandom(qEnvironmentVariableIsSet("QUORVA_TEST_CLOSE_KEPT"))
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_server.caCertificates());
    const std::string png = pngOf(Qt::darkCyan, 4).toStdString();
    m_server.respond([this, png](const HttpRequest &request) {
        const std::string &path = request.path;
        if (path.starts_with("/img/")) {
            HttpResponse picture;
            picture.contentType = "image/png";
            picture.body = png;
            return picture;
        }
        static const char *const suffixes[] = {"/offers.json", "/details.json", "/categories.json",
                                               "/transactions.json", "/tickets.json"};
        const auto endpoint = Endpoint(std::find_if(std::begin(suffixes), std::end(suffixes),
                                                    [&path](const char *suffix) { return path.ends_with(suffix); })
                                       - std::begin(suffixes));
        if (endpoint == EndpointCount)
            return HttpResponse::json(404, R"({"error":"no such endpoint"})");
        HttpResponse response;
        if (m_dropped[endpoint] || (endpoint == Offers && m_offersStalled)) {
            response.fault = m_dropped[endpoint] ? HttpResponse::Fault::DropConnection : HttpResponse::Fault::Stall;
            // A GET lost on a kept connection is sent once more on a fresh one.
            if (m_dropped[endpoint] && request.sequence > 0)
                ++m_resent[endpoint];
            return response;
        }
        switch (endpoint) {
        case Offers:
            response = offersPage(request);
            break;
        case Profile:
            response = HttpResponse::json(200, R"({"profile":{"settings":{"currency":{"visible":true,"name":"Gems"}}}})");
            break;
        case Categories:
            response = HttpResponse::json(200, R"([{"id":3,"name":"Games"},{"id":7,"name":"Travel"}])");
            break;
        case History: {
            std::lock_guard lock(m_historyMutex);
            response = HttpResponse::json(m_historyStatus, m_historyBody);
            break;
        }
        default:
            response = HttpResponse::json(201, "{\"ticket_id\":" + std::to_string(m_nextTicketId++) + "}");
            break;
        }
        response.releaseWhen = [this, endpoint] { return !m_held[endpoint]; };
        // Under stress, kept connections are closed after their answer now and then, as an
        // idle time-out or a middlebox does; that costs a wall nothing.
        if (m_closeKeptAtRandom && std::rand() % 3 == 0)
            response.fault = HttpResponse::Fault::CloseAfterAnswer;
        return response;
    });
}

HttpResponse FakeOfferService::offersPage(const HttpRequest &request) const
{
    const auto query = rawQueryPairs(request.query);
    const int offset = query.value(QStringLiteral("offset")).toInt();
    const int limit = query.value(QStringLiteral("limit")).toInt();
    HttpResponse response;
    if (offset >= m_total) {
        response.status = 204;
        return response;
    }
    QJsonArray offers;
    for (int i = offset; i < qMin(offset + limit, m_total.load()); ++i) {
        offers.append(QJsonObject{
            {QStringLiteral("offer_id"), QString::number(i)},
            {QStringLiteral("name"), QStringLiteral("Offer %1").arg(i)},
            {QStringLiteral("description"), QStringLiteral("Do task %1").arg(i)},
            {QStringLiteral("currency_count"), m_payout.load() + i},
            {QStringLiteral("image_url"), QStringLiteral("//%1/img/%2.png").arg(QString::fromStdString(request.header("host"))).arg(i)},
            {QStringLiteral("click_url"), QStringLiteral("https://advertiser.example/click?offer=%1").arg(i)},
        });
    }
    response.body = QJsonDocument(QJsonObject{{QStringLiteral("offers"), offers}}).toJson().toStdString();
    return response;
}

QByteArray FakeOfferService::historyOf(const QString &rows)
{
    QJsonArray transactions;
    for (const QString &row : rows.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const qsizetype colon = row.lastIndexOf(QLatin1Char(':'));
        transactions.append(QJsonObject{{"offer_name", row.left(colon).trimmed()},
                                        {"timestamp", "2026-03-04T17:22:05+0000"},
                                        {"currency_adjustment", row.mid(colon + 1).toDouble()}});
    }
    return QJsonDocument(QJsonObject{{"transactions", transactions}}).toJson(QJsonDocument::Compact);
}

void setTargeting(QuorvaRestAPI *api, const QStringList &values)
{
    int index = 0;
    for (auto set : {&QuorvaRestAPI::setGender, &QuorvaRestAPI::setAgeRange, &QuorvaRestAPI::setSubId2,
                     &QuorvaRestAPI::setSubId3, &QuorvaRestAPI::setSubId4})
        (api->*set)(values.value(index++));
}

void FakeOfferService::reset()
{
    m_total = 95;
    m_payout = 1500;
    for (int endpoint = 0; endpoint < EndpointCount; ++endpoint)
        m_dropped[endpoint] = m_held[endpoint] = false;
    m_offersStalled = false;
    for (auto &resent : m_resent)
        resent = 0;
    setHistory(200, R"({"transactions":[]})");
    m_server.clearRequests();
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(baseAddress());
    setTargeting(api);
    api->setPrivacy({});
    api->setAdvertisingInfoProvider(nullptr);
    api->setTransferTimeout(QuorvaRestAPI::kDefaultTransferTimeout);
}

QList<QMap<QString, QString>> FakeOfferService::offersQueries() const
{
    QList<QMap<QString, QString>> queries;
    for (const HttpRequest &request : m_server.requests()) {
        if (request.path.ends_with("/offers.json"))
            queries.append(rawQueryPairs(request.query));
    }
    return queries;
}

int FakeOfferService::callsTo(Endpoint endpoint) const
{
    static const char *const suffixes[] = {"/offers.json", "/details.json", "/categories.json",
                                           "/transactions.json", "/tickets.json"};
    return requestsTo(suffixes[endpoint]) - m_resent[endpoint];
}

int FakeOfferService::requestsTo(const std::string &pathSuffix) const
{
    int count = 0;
    for (const HttpRequest &request : m_server.requests())
        count += request.path.ends_with(pathSuffix) ? 1 : 0;
    return count;
}

void FakeOfferService::setHistory(int status, const QByteArray &body)
{
    std::lock_guard lock(m_historyMutex);
    m_historyStatus = status;
    m_historyBody = body.toStdString();
}

QList<QJsonObject> FakeOfferService::tickets() const
{
    QList<QJsonObject> bodies;
    for (const HttpRequest &request : m_server.requests()) {
        if (request.path.ends_with("/tickets.json"))
            bodies.append(QJsonDocument::fromJson(QByteArray::fromStdString(request.body)).object());
    }
    return bodies;
}
