#pragma once

#include "quorvamedia_global.h"
#include "QVAdvertisingInfo.h"
#include "QVCategory.h"
#include "QVOffer.h"
#include "QVProfile.h"
#include "QVTransaction.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtNetwork/QSslCertificate>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QThreadPool;
namespace quorva::detail { struct TransferRequest; struct ServiceRequests; }

// The one client of the offer service. Holds the publisher, profile and user identifiers
// and the targeting values; every request is asynchronous and reports back on the GUI
// thread, always after the call that started it has returned. Every request ends in
// exactly one callback and goes on the wire exactly once: a reply with any HTTP status
// is a response; a transport failure, the transfer time-out or the size cap is a failure.
class QUORVAMEDIA_EXPORT QuorvaRestAPI : public QObject
{
    Q_OBJECT

public:
    using OffersCallback = std::function<void(const QList<QVOffer> &offers, bool more)>;
    using ProfileCallback = std::function<void(const QVProfile &profile)>;
    using CategoriesCallback = std::function<void(const QList<QVCategory> &categories)>;
    using HistoryCallback = std::function<void(const QList<QVTransaction> &transactions)>;
    using TicketCallback = std::function<void(const QVariant &ticketId)>;
    using FailureCallback = std::function<void()>;
    using AdvertisingInfoProvider = std::function<QVAdvertisingInfo()>;

    static constexpr std::chrono::milliseconds kDefaultTransferTimeout{60000};
    static constexpr qint64 kDefaultMaximumReplySize = 4 * 1024 * 1024;

    static QuorvaRestAPI *sharedInstance();

    // Worker pool from which requests are sent and on which replies are parsed; the same
    // pool for every instance.
    QThreadPool *connectionQueue() const;

    QString pubId() const { return m_pubId; }
    void setPubId(const QString &value) { m_pubId = value; }
    QString corvelId() const { return m_corvelId; }
    void setCorvelId(const QString &value) { m_corvelId = value; }
    QString subId1() const { return m_subId1; }
    void setSubId1(const QString &value) { m_subId1 = value; }
    QString gender() const { return m_gender; }
    void setGender(const QString &value) { m_gender = value; }
    QString ageRange() const { return m_ageRange; }
    void setAgeRange(const QString &value) { m_ageRange = value; }
    QString subId2() const { return m_subId2; }
    void setSubId2(const QString &value) { m_subId2 = value; }
    QString subId3() const { return m_subId3; }
    void setSubId3(const QString &value) { m_subId3 = value; }
    QString subId4() const { return m_subId4; }
    void setSubId4(const QString &value) { m_subId4 = value; }

    // "host" or "host:port"; both schemes go to the same host and port.
    void setServiceBaseAddress(const QString &hostAndOptionalPort);
    QString serviceBaseAddress() const { return m_baseAddress; }

    // Extra certificate authorities trusted by every request of the library (REST and
    // pictures), on top of the system's. Certificate checks are never switched off.
    void addCaCertificates(const QList<QSslCertificate> &certificates);

    // How long a request may take from its start to the last byte of the reply before
    // it ends in the failure callback (60 s unless set).
    void setTransferTimeout(std::chrono::milliseconds timeout);
    std::chrono::milliseconds transferTimeout() const { return m_transferTimeout; }
    // The most a reply (head and body) may hold; a larger one is stopped and ends in
    // the failure callback (4 MiB unless set).
    void setMaximumReplySize(qint64 bytes);
    qint64 maximumReplySize() const { return m_maximumReplySize; }

    // Read anew for every offers request. Without a provider the all-zero identifier
    // is sent and tracking counts as not allowed.
    void setAdvertisingInfoProvider(AdvertisingInfoProvider provider);

    QString urlString(const QString &base, const std::optional<QVariantMap> &params) const;
    QString customUserAgent();
    QString dateStringFromString(const QString &timestamp) const;

    void fetchOffers(quint64 offset, const QString &sortby, const QString &category, bool featured,
                     OffersCallback callback, FailureCallback failure);
    void fetchProfile(ProfileCallback callback, FailureCallback failure);
    void fetchCategories(CategoriesCallback callback, FailureCallback failure);
    void fetchHistory(HistoryCallback callback, FailureCallback failure);
    void createSupportTicket(const QString &name, const QString &emailId, const QString &subject,
                             const QString &message, const QString &offerName,
                             const QString &completedAt, TicketCallback callback,
                             FailureCallback failure);

private:
    friend struct quorva::detail::ServiceRequests;
    explicit QuorvaRestAPI(QObject *parent = nullptr);

    Q_DECL_HIDDEN QString addressFor(const char *scheme, const QString &path) const;
    Q_DECL_HIDDEN QString userPath(const char *pathFormat) const;
    Q_DECL_HIDDEN quorva::detail::TransferRequest requestFor(const char *name, const QString &address);
    Q_DECL_HIDDEN QVAdvertisingInfo advertisingInfo() const;

    QString m_pubId;
    QString m_corvelId;
    QString m_subId1;
    QString m_gender;
    QString m_ageRange;
    QString m_subId2;
    QString m_subId3;
    QString m_subId4;

    QString m_baseAddress;
    // Replaced, never changed, so requests in flight keep the list they started with.
    std::shared_ptr<const QList<QByteArray>> m_extraAuthorities;
    std::chrono::milliseconds m_transferTimeout = kDefaultTransferTimeout;
    qint64 m_maximumReplySize = kDefaultMaximumReplySize;
    AdvertisingInfoProvider m_advertisingInfoProvider;
    QString m_cachedApplicationName;
    QString m_cachedDeviceModel;
};
