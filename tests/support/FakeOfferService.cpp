#include "FakeOfferService.h"

#include <QtCore/QBuffer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QImage>

#include <QuorvaMedia/QuorvaRestAPI.h>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

namespace {
HttpResponse dropped()
{
    HttpResponse response;
    response.fault = HttpResponse::Fault::DropConnection;
    return response;
}

std::string tinyPng()
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}
} // namespace

FakeOfferService::FakeOfferService()
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_server.caCertificates());
    const std::string png = tinyPng();
    m_server.respond([this, png](const HttpRequest &request) {
        const std::string &path = request.path;
        auto endsWith = [&path](const std::string &suffix) {
            return path.size() >= suffix.size() && path.compare(path.size() - suffix.size(), suffix.size(), suffix) == 0;
        };
        if (endsWith("/offers.json")) {
            if (m_offersDropped)
                return dropped();
            if (m_offersStalled) {
                HttpResponse stalled;
                stalled.fault = HttpResponse::Fault::Stall;
                return stalled;
            }
            const auto query = rawQueryPairs(request.query);
            const int offset = query.value(QStringLiteral("offset")).toInt();
            const int limit = query.value(QStringLiteral("limit")).toInt();
            HttpResponse response;
            response.releaseWhen = [this] { return !m_offersHeld; };
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
        if (endsWith("/details.json")) {
            if (m_profileDropped)
                return dropped();
            HttpResponse profile = HttpResponse::json(200, R"({"profile":{"settings":{"currency":{"visible":true,"name":"Gems"}}}})");
            profile.releaseWhen = [this] { return !m_profileHeld; };
            return profile;
        }
        if (endsWith("/categories.json")) {
            if (m_categoriesDropped)
                return dropped();
            return HttpResponse::json(200, R"([{"id":3,"name":"Games"},{"id":7,"name":"Travel"}])");
        }
        if (endsWith("/transactions.json")) {
            if (m_historyDropped)
                return dropped();
            std::lock_guard lock(m_historyMutex);
            HttpResponse history = HttpResponse::json(m_historyStatus, m_historyBody);
            history.releaseWhen = [this] { return !m_historyHeld; };
            return history;
        }
        if (endsWith("/tickets.json")) {
            if (m_ticketsDropped)
                return dropped();
            HttpResponse created = HttpResponse::json(201, "{\"ticket_id\":" + std::to_string(m_nextTicketId++) + "}");
            created.releaseWhen = [this] { return !m_ticketsHeld; };
            return created;
        }
        if (path.starts_with("/img/")) {
            HttpResponse picture;
            picture.contentType = "image/png";
            picture.body = png;
            return picture;
        }
        return HttpResponse::json(404, R"({"error":"no such endpoint"})");
    });
}

void FakeOfferService::reset()
{
    m_total = 95;
    m_payout = 1500;
    for (std::atomic<bool> *knob : {&m_offersDropped, &m_offersStalled, &m_offersHeld, &m_profileDropped,
                                    &m_categoriesDropped, &m_historyDropped, &m_historyHeld, &m_profileHeld,
                                    &m_ticketsDropped, &m_ticketsHeld})
        *knob = false;
    setHistory(200, R"({"transactions":[]})");
    m_server.clearRequests();
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(baseAddress());
    for (auto set : {&QuorvaRestAPI::setGender, &QuorvaRestAPI::setAgeRange, &QuorvaRestAPI::setSubId2,
                     &QuorvaRestAPI::setSubId3, &QuorvaRestAPI::setSubId4})
        (api->*set)(QString());
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
