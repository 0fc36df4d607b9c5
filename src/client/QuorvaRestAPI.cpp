// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QuorvaRestAPI.h"
#include "QuorvaRestAPIPrivate.h"
#include "QuorvaLog.h"
#include "PrivacySignals.h"
#include "ReplyParsers.h"
#include "RequestPipeline.h"
#include "ServiceRequests.h"
#include "ServiceTimestamp.h"
#include "UserAgent.h"
#include "../ui/QVDevice.h"
#include "../ui/QVPictureNetwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

using quorva::detail::PrivacySignals;
using quorva::detail::RequestPipeline;
using quorva::detail::ServiceIdentity;
using quorva::detail::ServiceRequests;
using quorva::detail::TransferRequest;

namespace {
constexpr QLatin1StringView kProductionHost("api.quorvamedia.com");
constexpr QLatin1StringView kZeroAdvertisingId("00000000-0000-0000-0000-000000000000");
constexpr QLatin1StringView kJsonContentType("application/json");
constexpr int kPageSize = 30;

constexpr const char *kHttps = "https://";
constexpr const char *kHttp = "http://";
constexpr const char *kOffersPath = "/corvel/api/publisher/%1/profile/%2/offers.json";
constexpr const char *kProfilePath = "/corvel/api/publisher/%1/profile/%2/details.json";
constexpr const char *kCategoriesPath = "/corvel/categories.json";
constexpr const char *kHistoryPath = "/corvel/api/publisher/%1/profile/%2/user/%3/transactions.json";
constexpr const char *kTicketPath = "/corvel/api/publisher/%1/profile/%2/user/%3/tickets.json";

namespace query {
constexpr QLatin1StringView subid1("subid1");
constexpr QLatin1StringView limit("limit");
constexpr QLatin1StringView offset("offset");
constexpr QLatin1StringView sortOrder("sort_order");
constexpr QLatin1StringView device("device");
constexpr QLatin1StringView limitTracking("limit_tracking");
constexpr QLatin1StringView sortBy("sort_by");
constexpr QLatin1StringView categoryId("category_id");
constexpr QLatin1StringView featuredOnly("featured_only");
constexpr QLatin1StringView ageRangeId("age_range_id");
constexpr QLatin1StringView gender("gender");
constexpr QLatin1StringView subid2("subid2");
constexpr QLatin1StringView subid3("subid3");
constexpr QLatin1StringView subid4("subid4");
constexpr QLatin1StringView visibility("visibility");
constexpr QLatin1StringView descending("desc");
constexpr QLatin1StringView defaultSort("popularity");
} // namespace query

namespace body {
constexpr QLatin1StringView name("name");
constexpr QLatin1StringView email("email");
constexpr QLatin1StringView subjectId("subject_id");
constexpr QLatin1StringView message("message");
constexpr QLatin1StringView offerName("offer_name");
constexpr QLatin1StringView completedAt("completed_at");
} // namespace body

namespace requestname {
constexpr const char *offers = "offers";
constexpr const char *profile = "profile";
constexpr const char *categories = "categories";
constexpr const char *history = "history";
constexpr const char *ticket = "ticket";
} // namespace requestname

namespace logline {
constexpr QLatin1StringView unknownProfile("corvelId doesn't exist for the specified pubId");
constexpr QLatin1StringView noTransactions("No transactions in history");
constexpr QLatin1StringView ticketParams("params: %1");
} // namespace logline

// Requests block a pool thread while on the wire, so the pool has room for several
// slow ones beside the fast ones.
constexpr int kMinimumConnectionThreads = 16;

constexpr int kStatusCreated = 201;
constexpr int kStatusNoContent = 204;
constexpr int kStatusNotFound = 404;

// A parameter value as the service expects it: booleans as 1 or 0, the rest as text.
QString queryValue(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    return value.toString();
}

QString canonicalAdvertisingId(const QString &identifier)
{
    const QUuid uuid(identifier);
    if (uuid.isNull())
        return identifier.isEmpty() ? QString(kZeroAdvertisingId) : identifier;
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}

void insertIfPresent(QVariantMap &map, QLatin1StringView key, const QString &value)
{
    if (!value.isNull())
        map.insert(key, value);
}

void insertIfPresent(QJsonObject &object, QLatin1StringView key, const QString &value)
{
    if (!value.isNull())
        object.insert(key, value);
}

// An absent required value is a programming error of the caller: stop, in every build.
void require(const QString &value, const char *request, const char *name)
{
    if (value.isNull())
        qFatal("QuorvaRestAPI::%s: %s must be set", request, name);
}

// The header value without line breaks, so a host's name cannot add header lines.
QByteArray headerValue(const QString &text)
{
    QByteArray value = text.toUtf8();
    value.replace('\r', ' ').replace('\n', ' ');
    return value;
}
} // namespace

QuorvaRestAPI::QuorvaRestAPI(QObject *parent)
    : QObject(parent), m_d(std::make_unique<QuorvaRestAPIPrivate>())
{
    Q_D(QuorvaRestAPI);
    d->m_baseAddress = kProductionHost;
    d->m_extraAuthorities = std::make_shared<QList<QByteArray>>();
}

QuorvaRestAPI::~QuorvaRestAPI() = default;

QuorvaRestAPI *QuorvaRestAPI::sharedInstance()
{
    // Thread-safe one-time creation; the client lives on the application's thread
    // whichever thread asks first, because its network manager must.
    static QuorvaRestAPI *instance = [] {
        auto *api = new QuorvaRestAPI;
        if (QCoreApplication *app = QCoreApplication::instance())
            api->moveToThread(app->thread());
        return api;
    }();
    return instance;
}

QThreadPool *QuorvaRestAPI::connectionQueue() const
{
    static QThreadPool *pool = [] {
        auto *p = new QThreadPool;
        p->setExpiryTimeout(30000);
        p->setMaxThreadCount(qMax(kMinimumConnectionThreads, QThread::idealThreadCount()));
        return p;
    }();
    return pool;
}

void QuorvaRestAPI::setServiceBaseAddress(const QString &hostAndOptionalPort)
{
    QString address = hostAndOptionalPort.trimmed();
    // Each request picks its own scheme, so a scheme written in front is dropped, with
    // a word, rather than doubled into every address.
    if (const qsizetype scheme = address.indexOf(QLatin1StringView("://")); scheme > 0) {
        address.remove(0, scheme + 3);
        qCWarning(lcQuorvaDiagnostics).noquote()
            << "service address" << hostAndOptionalPort << "takes no scheme: using" << address;
    }
    while (address.endsWith(QLatin1Char('/')))
        address.chop(1);
    const auto notInAHost = [](QChar c) { return c.isSpace() || c == u'/' || c == u'@' || c == u'?' || c == u'#'; };
    if (address.isEmpty() || std::any_of(address.cbegin(), address.cend(), notInAHost))
        qCWarning(lcQuorvaDiagnostics).noquote()
            << "service address" << hostAndOptionalPort << "is not \"host\" or \"host:port\": requests to it fail";
    d_func()->m_baseAddress = address;
}

void QuorvaRestAPI::addCaCertificates(const QList<QSslCertificate> &certificates)
{
    auto authorities = std::make_shared<QList<QByteArray>>(*d_func()->m_extraAuthorities);
    for (const QSslCertificate &certificate : certificates)
        authorities->append(certificate.toDer());
    d_func()->m_extraAuthorities = std::move(authorities);
    QVPictureNetwork::addCaCertificates(certificates);
}

void QuorvaRestAPI::setTransferTimeout(std::chrono::milliseconds timeout)
{
    d_func()->m_transferTimeout = timeout;
}

void QuorvaRestAPI::setMaximumReplySize(qint64 bytes)
{
    d_func()->m_maximumReplySize = bytes;
}

void QuorvaRestAPI::setAdvertisingInfoProvider(AdvertisingInfoProvider provider)
{
    d_func()->m_advertisingInfoProvider = std::move(provider);
}

void QuorvaRestAPI::setPrivacy(const QVPrivacy &privacy)
{
    d_func()->m_privacy = privacy;
}

QVPrivacy QuorvaRestAPI::privacy() const
{
    return d_func()->m_privacy;
}

QString QuorvaRestAPI::urlString(const QString &base, const std::optional<QVariantMap> &params) const
{
    if (!params)
        return base;
    // Deliberately unescaped: the service receives the values exactly as given.
    QString address = base + QLatin1Char('?');
    bool first = true;
    for (auto it = params->cbegin(); it != params->cend(); ++it) {
        if (!first)
            address += QLatin1Char('&');
        address += it.key() + QLatin1Char('=') + queryValue(it.value());
        first = false;
    }
    return address;
}

QString QuorvaRestAPI::customUserAgent()
{
    // Only present values are cached, so a name the host sets later is still picked up.
    if (d_func()->m_cachedApplicationName.isEmpty())
        d_func()->m_cachedApplicationName = QCoreApplication::applicationName();
    if (d_func()->m_cachedDeviceModel.isEmpty())
        d_func()->m_cachedDeviceModel = QVDevice::model();
    return quorva::detail::formatUserAgent(d_func()->m_cachedApplicationName, d_func()->m_cachedDeviceModel);
}

QString QuorvaRestAPI::dateStringFromString(const QString &timestamp) const
{
    return quorva::detail::displayTimestamp(timestamp);
}

QString QuorvaRestAPI::addressFor(const char *scheme, const QString &path) const
{
    return QLatin1StringView(scheme) + d_func()->m_baseAddress + path;
}

QString QuorvaRestAPI::userPath(const char *pathFormat) const
{
    return QString::fromLatin1(pathFormat).arg(d_func()->m_pubId, d_func()->m_corvelId, d_func()->m_subId1);
}

TransferRequest QuorvaRestAPI::requestFor(const char *name, const QString &address)
{
    TransferRequest request;
    request.name = name;
    request.method = "GET";
    // Sent as written: an address the host made unsendable (a blank in a
    // sub-identifier) fails rather than being repaired.
    request.address = address;
    request.userAgent = headerValue(customUserAgent());
    request.timeout = d_func()->m_transferTimeout;
    request.maximumReplySize = d_func()->m_maximumReplySize;
    request.extraAuthorities = d_func()->m_extraAuthorities;
    return request;
}

void QuorvaRestAPI::fetchOffers(quint64 offset, const QString &sortby, const QString &category,
                                bool featured, OffersCallback callback, FailureCallback failure)
{
    ServiceRequests::sendOffers(
        this, ServiceRequests::offersRequest(this, ServiceIdentity::of(this), offset, sortby, category, featured),
        std::move(callback), std::move(failure));
}

void QuorvaRestAPI::fetchProfile(ProfileCallback callback, FailureCallback failure)
{
    ServiceRequests::fetchProfile(
        this, ServiceIdentity::of(this),
        [callback = std::move(callback)](const std::optional<QVProfile> &profile) {
            // Unknown profile: neither callback runs, the caller keeps its current display.
            if (profile)
                callback(*profile);
        },
        std::move(failure));
}

void QuorvaRestAPI::fetchCategories(CategoriesCallback callback, FailureCallback failure)
{
    const QString address = urlString(addressFor(kHttps, QString::fromLatin1(kCategoriesPath)),
                                      QVariantMap{{query::visibility, QStringLiteral("1")}});
    RequestPipeline::send<QList<QVCategory>>(
        connectionQueue(), requestFor(requestname::categories, address), &quorva::detail::parseCategories,
        [callback = std::move(callback)](int, const QList<QVCategory> &categories) {
            callback(categories);
        },
        std::move(failure));
}

void QuorvaRestAPI::fetchHistory(HistoryCallback callback, FailureCallback failure)
{
    ServiceRequests::fetchHistory(
        this, ServiceIdentity::of(this),
        [callback = std::move(callback)](int status, const std::optional<QList<QVTransaction>> &transactions) {
            if (status == kStatusNoContent)
                qCInfo(lcQuorva).noquote() << logline::noTransactions;
            callback(transactions.value_or(QList<QVTransaction>()));
        },
        std::move(failure));
}

void QuorvaRestAPI::createSupportTicket(const QString &name, const QString &emailId,
                                        const QString &subject, const QString &message,
                                        const QString &offerName, const QString &completedAt,
                                        TicketCallback callback, FailureCallback failure)
{
    require(name, "createSupportTicket", "name");
    require(emailId, "createSupportTicket", "emailId");
    require(subject, "createSupportTicket", "subject");
    QJsonObject ticket{{body::name, name}, {body::email, emailId}, {body::subjectId, subject}};
    insertIfPresent(ticket, body::offerName, offerName);
    insertIfPresent(ticket, body::completedAt, completedAt);
    insertIfPresent(ticket, body::message, message);
    const QByteArray payload = QJsonDocument(ticket).toJson(QJsonDocument::Indented);
    qCInfo(lcQuorva).noquote()
        << QString(logline::ticketParams)
               .arg(QString::fromUtf8(QJsonDocument(ticket).toJson(QJsonDocument::Compact)));

    TransferRequest request = requestFor(requestname::ticket, addressFor(kHttps, userPath(kTicketPath)));
    request.method = "POST";
    request.contentType = kJsonContentType.latin1();
    request.body = payload;
    RequestPipeline::send<QVariant>(
        connectionQueue(), std::move(request), &quorva::detail::parseTicketId,
        [callback = std::move(callback), failure](int status, const QVariant &ticketId) {
            if (status == kStatusCreated)
                callback(ticketId);
            else
                failure();
        },
        failure);
}

namespace quorva::detail {

ServiceIdentity ServiceIdentity::of(const QuorvaRestAPI *api)
{
    return {api->pubId(), api->corvelId(), api->subId1()};
}

TransferRequest ServiceRequests::offersRequest(QuorvaRestAPI *api, const ServiceIdentity &identity, quint64 offset,
                                               const QString &sortby, const QString &category, bool featured)
{
    require(identity.subId1, "fetchOffers", "subId1");
    const QuorvaRestAPIPrivate *d = api->d_func();
    QVariantMap params{
        {query::subid1, identity.subId1},
        {query::limit, QString::number(kPageSize)},
        {query::offset, QString::number(offset)},
        {query::sortOrder, QString(query::descending)},
        {query::sortBy, sortby.isNull() ? QString(query::defaultSort) : sortby},
    };
    insertIfPresent(params, query::categoryId, category);
    if (featured)
        params.insert(query::featuredOnly, QStringLiteral("1"));
    if (PrivacySignals::allowPersonalisation(d->m_privacy)) {
        insertIfPresent(params, query::ageRangeId, d->m_ageRange);
        insertIfPresent(params, query::gender, d->m_gender);
    }
    insertIfPresent(params, query::subid2, d->m_subId2);
    insertIfPresent(params, query::subid3, d->m_subId3);
    insertIfPresent(params, query::subid4, d->m_subId4);

    const QString base = api->addressFor(kHttps, QString::fromLatin1(kOffersPath).arg(identity.pubId, identity.corvelId));
    const QString privacyPairs = PrivacySignals::queryPairs(d->m_privacy);
    // The identifier and the tracking flag as the service reads them: "limit_tracking" 1
    // means tracking is allowed, despite its name.
    auto addressWith = [api, base, params, privacyPairs](const QVAdvertisingInfo &advertising) mutable {
        params.insert(query::device, canonicalAdvertisingId(advertising.identifier));
        params.insert(query::limitTracking, advertising.trackingEnabled);
        return api->urlString(base, params) + privacyPairs;
    };
    const QuorvaRestAPI::AdvertisingInfoProvider provider = d->m_advertisingInfoProvider;
    if (!provider || PrivacySignals::withholdIdentifier(d->m_privacy))
        return api->requestFor(requestname::offers, addressWith(QVAdvertisingInfo()));
    // The provider's platform call blocks: it is read on the worker pool, just before
    // sending. The request is known by everything else.
    TransferRequest request = api->requestFor(requestname::offers, api->urlString(base, params) + privacyPairs);
    request.completeAddress = [addressWith, provider]() mutable { return addressWith(provider()); };
    return request;
}

void ServiceRequests::sendOffers(QuorvaRestAPI *api, TransferRequest request, QuorvaRestAPI::OffersCallback callback,
                                 QuorvaRestAPI::FailureCallback failure)
{
    RequestPipeline::send<QList<QVOffer>>(
        api->connectionQueue(), std::move(request), &parseOffers,
        [callback = std::move(callback)](int status, const QList<QVOffer> &offers) {
            callback(offers, status != kStatusNoContent);
        },
        std::move(failure));
}

void ServiceRequests::fetchProfile(QuorvaRestAPI *api, const ServiceIdentity &identity, ProfileOutcome callback,
                                   QuorvaRestAPI::FailureCallback failure)
{
    // The profile details are served over plain http.
    const QString path = QString::fromLatin1(kProfilePath).arg(identity.pubId, identity.corvelId);
    const QString address = api->urlString(api->addressFor(kHttp, path), std::nullopt);
    RequestPipeline::send<QVProfile>(
        api->connectionQueue(), api->requestFor(requestname::profile, address), &parseProfile,
        [callback = std::move(callback)](int status, const QVProfile &profile) {
            if (status == kStatusNotFound) {
                qCInfo(lcQuorva).noquote() << logline::unknownProfile;
                callback(std::nullopt);
                return;
            }
            callback(profile);
        },
        std::move(failure));
}

void ServiceRequests::fetchHistory(QuorvaRestAPI *api, const ServiceIdentity &identity, HistoryOutcome callback,
                                   QuorvaRestAPI::FailureCallback failure)
{
    const QString path = QString::fromLatin1(kHistoryPath).arg(identity.pubId, identity.corvelId, identity.subId1);
    const QString address = api->urlString(api->addressFor(kHttps, path), std::nullopt);
    RequestPipeline::send<std::optional<QList<QVTransaction>>>(
        api->connectionQueue(), api->requestFor(requestname::history, address), &parseTransactionList,
        std::move(callback), std::move(failure));
}

} // namespace quorva::detail

QString QuorvaRestAPI::pubId() const
{
    return d_func()->m_pubId;
}

void QuorvaRestAPI::setPubId(const QString &value)
{
    d_func()->m_pubId = value;
}

QString QuorvaRestAPI::corvelId() const
{
    return d_func()->m_corvelId;
}

void QuorvaRestAPI::setCorvelId(const QString &value)
{
    d_func()->m_corvelId = value;
}

QString QuorvaRestAPI::subId1() const
{
    return d_func()->m_subId1;
}

void QuorvaRestAPI::setSubId1(const QString &value)
{
    d_func()->m_subId1 = value;
}

QString QuorvaRestAPI::gender() const
{
    return d_func()->m_gender;
}

void QuorvaRestAPI::setGender(const QString &value)
{
    d_func()->m_gender = value;
}

QString QuorvaRestAPI::ageRange() const
{
    return d_func()->m_ageRange;
}

void QuorvaRestAPI::setAgeRange(const QString &value)
{
    d_func()->m_ageRange = value;
}

QString QuorvaRestAPI::subId2() const
{
    return d_func()->m_subId2;
}

void QuorvaRestAPI::setSubId2(const QString &value)
{
    d_func()->m_subId2 = value;
}

QString QuorvaRestAPI::subId3() const
{
    return d_func()->m_subId3;
}

void QuorvaRestAPI::setSubId3(const QString &value)
{
    d_func()->m_subId3 = value;
}

QString QuorvaRestAPI::subId4() const
{
    return d_func()->m_subId4;
}

void QuorvaRestAPI::setSubId4(const QString &value)
{
    d_func()->m_subId4 = value;
}

QString QuorvaRestAPI::serviceBaseAddress() const
{
    return d_func()->m_baseAddress;
}

std::chrono::milliseconds QuorvaRestAPI::transferTimeout() const
{
    return d_func()->m_transferTimeout;
}

qint64 QuorvaRestAPI::maximumReplySize() const
{
    return d_func()->m_maximumReplySize;
}
