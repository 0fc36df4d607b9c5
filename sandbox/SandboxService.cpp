// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SandboxService.h"

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <regex>
#include <sstream>

namespace quorva::sandbox {

using http::HttpRequest;
using http::HttpResponse;

namespace {
constexpr int kDefaultLimit = 30;
constexpr int kMaxLimit = 100;

const std::regex kOffersRoute(R"(^/corvel/api/publisher/([^/]+)/profile/([^/]+)/offers\.json$)");
const std::regex kProfileRoute(R"(^/corvel/api/publisher/([^/]+)/profile/([^/]+)/details\.json$)");
const std::regex kCategoriesRoute(R"(^/corvel/categories\.json$)");
const std::regex kTransactionsRoute(R"(^/corvel/api/publisher/([^/]+)/profile/([^/]+)/user/([^/]+)/transactions\.json$)");
const std::regex kTicketsRoute(R"(^/corvel/api/publisher/([^/]+)/profile/([^/]+)/user/([^/]+)/tickets\.json$)");
const std::regex kTicketListRoute(R"(^/sandbox/tickets\.json$)");
const std::regex kCreditRoute(R"(^/sandbox/publisher/([^/]+)/profile/([^/]+)/user/([^/]+)/credits\.json$)");
const std::regex kPictureRoute(R"(^/img/(\d+)\.png$)");
const std::regex kClickRoute(R"(^/click/(\d+)$)");

QString q(const std::string &text)
{
    return QString::fromStdString(text);
}

HttpResponse jsonResponse(int status, const QJsonDocument &document)
{
    return HttpResponse::json(status, document.toJson(QJsonDocument::Compact).toStdString());
}

HttpResponse error(int status, const char *message)
{
    return jsonResponse(status, QJsonDocument(QJsonObject{{QStringLiteral("error"), QString::fromUtf8(message)}}));
}

HttpResponse noContent()
{
    HttpResponse response;
    response.status = 204;
    return response;
}

std::optional<std::int64_t> integer(const std::string &text)
{
    std::int64_t value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

// What an offers request said of the user's privacy, for the developer watching the log.
std::string privacySummary(const std::map<std::string, std::string> &items)
{
    std::string line = "  privacy:";
    bool any = false;
    for (const std::string key : {"gdpr", "gdpr_consent", "us_privacy", "gpp", "gpp_sid", "coppa"}) {
        const auto it = items.find(key);
        if (it == items.end())
            continue;
        // The long consent strings by their size; the short flags as they came, printable.
        std::string value = key == "gdpr_consent" || key == "gpp" ? std::to_string(it->second.size()) + " bytes"
                                                                   : it->second.substr(0, 32);
        std::replace_if(value.begin(), value.end(), [](unsigned char c) { return c < 0x20 || c >= 0x7f; }, '?');
        line += " " + key + "=" + value;
        any = true;
    }
    if (!any)
        line += " none";
    if (const auto it = items.find("coppa"); it != items.end() && it->second == "1")
        line += " (a child: casino offers left out)";
    const auto device = items.find("device");
    const bool anonymous = device == items.end() || device->second == "00000000-0000-0000-0000-000000000000";
    line += anonymous ? "; no advertising identifier" : "; advertising identifier sent";
    line += items.count("gender") || items.count("age_range_id") ? ", targeting sent" : ", no targeting";
    return line;
}

// Pictures are served by this same server; their addresses are scheme-relative.
std::string pictureAddress(const HttpRequest &request, std::int64_t offerId)
{
    return "//" + request.header("host") + "/img/" + std::to_string(offerId) + ".png";
}
} // namespace

SandboxService::SandboxService(SandboxStore &store, FaultOptions faults,
                               std::function<void(const std::string &)> log)
    : m_store(store), m_faults(std::move(faults)), m_log(std::move(log))
{
}

HttpResponse SandboxService::handle(const HttpRequest &request)
{
    HttpResponse response;
    const FaultOptions &faults = currentFaults();
    const bool matches = faults.pathFilter.empty() || request.path.find(faults.pathFilter) != std::string::npos;
    if (matches && faults.dropReused && request.sequence > 0) {
        // Read, then hung up on before it is handled: what a kept connection that dies
        // under a request looks like to the client.
        response.fault = HttpResponse::Fault::DropConnection;
    } else {
        try {
            response = route(request);
        } catch (const std::exception &e) {
            response = error(500, e.what());
        }
        applyFaults(request, response);
    }
    if (m_log) {
        std::string line = request.method + " " + request.target + " -> " + std::to_string(response.status)
            + (request.tls ? " (https" : " (http") + ", connection " + std::to_string(request.connection)
            + " request " + std::to_string(request.sequence + 1) + ")";
        if (response.fault == HttpResponse::Fault::DropConnection)
            line += " [dropped]";
        m_log(line);
    }
    return response;
}

FaultOptions FaultOptions::parse(const std::string &text)
{
    FaultOptions faults;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        const auto equals = line.find('=');
        if (equals == std::string::npos)
            continue;
        const std::string key = line.substr(0, equals);
        const std::string value = line.substr(equals + 1);
        const std::int64_t number = integer(value).value_or(0);
        if (key == "latency")
            faults.latency = std::chrono::milliseconds(std::clamp<std::int64_t>(number, 0, 600000));
        else if (key == "drop")
            faults.dropConnections = number != 0;
        else if (key == "drop-every")
            faults.dropEvery = int(std::clamp<std::int64_t>(number, 0, 1000));
        else if (key == "status" && number >= 100 && number <= 599)
            faults.forcedStatus = int(number);
        else if (key == "body")
            faults.body = value == "truncated" ? Body::Truncated : value == "not-json" ? Body::NotJson : Body::Intact;
        else if (key == "close-idle")
            faults.closeIdle = number != 0;
        else if (key == "drop-reused")
            faults.dropReused = number != 0;
        else if (key == "path")
            faults.pathFilter = value;
    }
    return faults;
}

const FaultOptions &SandboxService::currentFaults()
{
    if (m_faultFile.empty())
        return m_faults;
    std::ifstream file(m_faultFile);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (text != m_faultFileText) {
        m_faultFileText = text;
        m_fileFaults = FaultOptions::parse(text);
        m_matchingRequests = 0;
    }
    return text.empty() ? m_faults : m_fileFaults;
}

void SandboxService::applyFaults(const HttpRequest &request, HttpResponse &response)
{
    const FaultOptions &faults = currentFaults();
    if (!faults.pathFilter.empty() && request.path.find(faults.pathFilter) == std::string::npos)
        return;
    ++m_matchingRequests;
    response.delay = faults.latency;
    if (faults.dropConnections || (faults.dropEvery > 0 && m_matchingRequests % faults.dropEvery == 0)) {
        response.fault = HttpResponse::Fault::DropConnection;
        return;
    }
    if (faults.forcedStatus) {
        response.status = *faults.forcedStatus;
        response.contentType = "application/json";
        response.body = response.status == 204 ? std::string() : R"({"error":"forced status"})";
    }
    if (faults.closeIdle)
        response.fault = HttpResponse::Fault::CloseAfterAnswer;
    if (faults.body == FaultOptions::Body::NotJson) {
        response.contentType = "text/html";
        response.body = "<html><body>Service temporarily unavailable</body></html>";
    } else if (faults.body == FaultOptions::Body::Truncated) {
        response.fault = HttpResponse::Fault::TruncateBody;
    }
}

HttpResponse SandboxService::route(const HttpRequest &request)
{
    std::smatch m;
    const std::string &path = request.path;
    const bool get = request.method == "GET";
    if (std::regex_match(path, m, kOffersRoute))
        return get ? offers(request, m[1], m[2]) : error(405, "use GET");
    if (std::regex_match(path, m, kProfileRoute))
        return get ? profile(m[1], m[2]) : error(405, "use GET");
    if (std::regex_match(path, m, kCategoriesRoute))
        return get ? categories() : error(405, "use GET");
    if (std::regex_match(path, m, kTransactionsRoute))
        return get ? transactions(m[1], m[2], m[3]) : error(405, "use GET");
    if (std::regex_match(path, m, kTicketsRoute))
        return request.method == "POST" ? createTicket(request, m[1], m[2], m[3]) : error(405, "use POST");
    if (std::regex_match(path, m, kTicketListRoute))
        return listTickets();
    if (std::regex_match(path, m, kCreditRoute))
        return request.method == "POST" ? credit(request, m[1], m[2], m[3]) : error(405, "use POST");
    // An id too large for any offer is simply not found.
    if (std::regex_match(path, m, kPictureRoute)) {
        const auto id = integer(m[1]);
        return id ? picture(*id) : error(404, "no such picture");
    }
    if (std::regex_match(path, m, kClickRoute)) {
        const auto id = integer(m[1]);
        return id ? clickPage(*id) : error(404, "no such offer");
    }
    return error(404, "no such endpoint");
}

HttpResponse SandboxService::offers(const HttpRequest &request, const std::string &pub, const std::string &wall)
{
    if (!m_store.publisherExists(pub))
        return error(404, "unknown publisher");
    const auto profileRow = m_store.profile(pub, wall);
    if (!profileRow)
        return error(404, "unknown profile");
    const auto items = request.queryItems();
    auto item = [&items](const char *key) -> std::optional<std::string> {
        const auto it = items.find(key);
        return it == items.end() ? std::nullopt : std::optional(it->second);
    };
    if (!item("subid1") || item("subid1")->empty())
        return error(400, "subid1 is required");

    OfferQuery query;
    query.limit = kDefaultLimit;
    if (const auto limit = item("limit")) {
        const auto value = integer(*limit);
        if (!value || *value < 1 || *value > kMaxLimit)
            return error(400, "limit must be a number from 1 to 100");
        query.limit = static_cast<int>(*value);
    }
    if (const auto offset = item("offset")) {
        const auto value = integer(*offset);
        if (!value || *value < 0)
            return error(400, "offset must be a non-negative number");
        query.offset = *value;
    }
    if (const auto sort = item("sort_by")) {
        if (!SandboxStore::isKnownSort(*sort))
            return error(400, "sort_by must be popularity, trending, payout or credit_delay");
        query.sortBy = *sort;
    }
    query.descending = item("sort_order").value_or("desc") != "asc";
    if (const auto category = item("category_id")) {
        query.categoryId = integer(*category);
        if (!query.categoryId)
            return error(400, "category_id must be a number");
    }
    query.featuredOnly = item("featured_only").value_or("0") == "1";
    query.forChildren = item("coppa").value_or("0") == "1";
    if (m_log)
        m_log(privacySummary(items));

    const std::vector<OfferRow> rows = m_store.offers(*profileRow, query);
    if (rows.empty())
        return noContent(); // past the end of the list
    QJsonArray list;
    for (const OfferRow &row : rows) {
        list.append(QJsonObject{
            {QStringLiteral("offer_id"), QString::number(row.id)},
            {QStringLiteral("name"), q(row.name)},
            {QStringLiteral("description"), q(row.description)},
            {QStringLiteral("currency_count"), static_cast<qint64>(row.payout)},
            {QStringLiteral("image_url"), q(pictureAddress(request, row.id))},
            {QStringLiteral("click_url"),
             q("http://" + request.header("host") + "/click/" + std::to_string(row.id))},
            {QStringLiteral("category_id"), static_cast<qint64>(row.categoryId)},
            {QStringLiteral("featured"), row.featured},
        });
    }
    return jsonResponse(200, QJsonDocument(QJsonObject{{QStringLiteral("offers"), list}}));
}

HttpResponse SandboxService::profile(const std::string &pub, const std::string &wall)
{
    const auto row = m_store.profile(pub, wall);
    if (!row)
        return error(404, "no such profile for this publisher");
    const QJsonObject currency{{QStringLiteral("name"), q(row->currencyName)},
                               {QStringLiteral("visible"), row->currencyVisible}};
    const QJsonObject profileObject{{QStringLiteral("id"), q(row->corvelId)},
                                    {QStringLiteral("name"), q(row->profileName)},
                                    {QStringLiteral("settings"), QJsonObject{{QStringLiteral("currency"), currency}}}};
    return jsonResponse(200, QJsonDocument(QJsonObject{{QStringLiteral("profile"), profileObject}}));
}

HttpResponse SandboxService::categories()
{
    QJsonArray list;
    for (const CategoryRow &row : m_store.categories())
        list.append(QJsonObject{{QStringLiteral("id"), static_cast<qint64>(row.id)}, {QStringLiteral("name"), q(row.name)}});
    return jsonResponse(200, QJsonDocument(list));
}

HttpResponse SandboxService::transactions(const std::string &pub, const std::string &wall, const std::string &user)
{
    const auto row = m_store.profile(pub, wall);
    if (!row)
        return error(404, "no such profile for this publisher");
    const auto rows = m_store.transactions(*row, user);
    if (rows.empty())
        return noContent();
    QJsonArray list;
    for (const TransactionRow &t : rows) {
        list.append(QJsonObject{{QStringLiteral("offer_name"), q(t.offerName)},
                                {QStringLiteral("timestamp"), q(t.timestamp)},
                                {QStringLiteral("currency_adjustment"), static_cast<qint64>(t.adjustment)}});
    }
    return jsonResponse(200, QJsonDocument(QJsonObject{{QStringLiteral("transactions"), list}}));
}

HttpResponse SandboxService::createTicket(const HttpRequest &request, const std::string &pub,
                                          const std::string &wall, const std::string &user)
{
    if (!m_store.profile(pub, wall))
        return error(404, "no such profile for this publisher");
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(request.body), &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject())
        return error(400, "the ticket body must be a JSON object");
    const QJsonObject body = document.object();
    for (const char *required : {"name", "email", "subject_id"}) {
        const QJsonValue value = body.value(QLatin1StringView(required));
        if (!value.isString() || value.toString().trimmed().isEmpty())
            return error(422, (std::string("missing or empty key: ") + required).c_str());
    }
    auto optional = [&body](const char *key) -> std::optional<std::string> {
        const QJsonValue value = body.value(QLatin1StringView(key));
        return value.isString() ? std::optional(value.toString().toStdString()) : std::nullopt;
    };
    TicketRow ticket;
    ticket.pubId = pub;
    ticket.corvelId = wall;
    ticket.userId = user;
    ticket.name = body.value(QStringLiteral("name")).toString().toStdString();
    ticket.email = body.value(QStringLiteral("email")).toString().toStdString();
    ticket.subjectId = body.value(QStringLiteral("subject_id")).toString().toStdString();
    ticket.message = optional("message");
    ticket.offerName = optional("offer_name");
    ticket.completedAt = optional("completed_at");
    const std::int64_t id = m_store.insertTicket(ticket);
    return jsonResponse(201, QJsonDocument(QJsonObject{{QStringLiteral("ticket_id"), static_cast<qint64>(id)}}));
}

HttpResponse SandboxService::listTickets()
{
    QJsonArray list;
    auto put = [](QJsonObject &o, const char *key, const std::optional<std::string> &value) {
        if (value)
            o.insert(QLatin1StringView(key), q(*value));
    };
    for (const TicketRow &t : m_store.tickets()) {
        QJsonObject o{{QStringLiteral("ticket_id"), static_cast<qint64>(t.ticketId)},
                      {QStringLiteral("pub_id"), q(t.pubId)}, {QStringLiteral("corvel_id"), q(t.corvelId)},
                      {QStringLiteral("user"), q(t.userId)}, {QStringLiteral("name"), q(t.name)},
                      {QStringLiteral("email"), q(t.email)}, {QStringLiteral("subject_id"), q(t.subjectId)}};
        put(o, "message", t.message);
        put(o, "offer_name", t.offerName);
        put(o, "completed_at", t.completedAt);
        list.append(o);
    }
    return jsonResponse(200, QJsonDocument(QJsonObject{{QStringLiteral("tickets"), list}}));
}

// Stands in for an offer being completed: the user is credited now.
HttpResponse SandboxService::credit(const HttpRequest &request, const std::string &pub, const std::string &wall,
                                    const std::string &user)
{
    const auto profileRow = m_store.profile(pub, wall);
    if (!profileRow)
        return error(404, "no such profile for this publisher");
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(request.body), &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject())
        return error(400, "the credit body must be a JSON object");
    const QJsonValue name = document.object().value(QStringLiteral("offer_name"));
    const QJsonValue amount = document.object().value(QStringLiteral("currency_adjustment"));
    if (!name.isString() || name.toString().trimmed().isEmpty())
        return error(400, "offer_name must be a non-empty string");
    // Whole amounts only, as the store keeps them.
    const double value = amount.toDouble();
    if (!amount.isDouble() || value != std::floor(value) || std::abs(value) > 1e15)
        return error(400, "currency_adjustment must be a whole number");
    TransactionRow row;
    row.offerName = name.toString().toStdString();
    row.timestamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss+0000")).toStdString();
    row.adjustment = static_cast<std::int64_t>(value);
    m_store.insertTransaction(profileRow->pubId, profileRow->corvelId, user, row);
    return jsonResponse(201, QJsonDocument(QJsonObject{{QStringLiteral("offer_name"), name},
                                                       {QStringLiteral("timestamp"), q(row.timestamp)},
                                                       {QStringLiteral("currency_adjustment"), amount}}));
}

HttpResponse SandboxService::picture(std::int64_t offerId)
{
    const auto row = m_store.offer(offerId);
    if (!row)
        return error(404, "no such picture");
    HttpResponse response;
    response.contentType = "image/png";
    response.headers["cache-control"] = "max-age=86400";
    response.body = m_pictures.png(offerId, row->name);
    return response;
}

HttpResponse SandboxService::clickPage(std::int64_t offerId)
{
    const auto row = m_store.offer(offerId);
    if (!row)
        return error(404, "no such offer");
    HttpResponse response;
    response.contentType = "text/html; charset=utf-8";
    response.body = "<!doctype html><title>" + row->name + "</title><h1>" + row->name + "</h1><p>"
        + row->description + "</p><p>This page stands in for the advertiser's landing page.</p>";
    return response;
}

} // namespace quorva::sandbox
