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
#include <QtNetwork/QSslConfiguration>

#include <functional>
#include <optional>

class QNetworkAccessManager;
class QNetworkRequest;
class QThreadPool;

// The one client of the offer service. Holds the publisher, profile and user identifiers
// and the targeting values; every request is asynchronous and reports back on the GUI
// thread, always after the call that started it has returned.
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

    static QuorvaRestAPI *sharedInstance();

    // Worker pool on which replies are parsed; the same pool for every instance.
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
    QSslConfiguration sslConfiguration() const { return m_sslConfiguration; }

    // Read anew for every offers request. Without a provider the all-zero identifier
    // is sent and tracking counts as not allowed.
    void setAdvertisingInfoProvider(AdvertisingInfoProvider provider);

    // The network access manager shared by the REST client and the picture loader.
    QNetworkAccessManager *networkAccessManager();

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
    explicit QuorvaRestAPI(QObject *parent = nullptr);

    QString addressFor(const char *scheme, const QString &path) const;
    QString profilePath(const char *pathFormat) const;
    QString userPath(const char *pathFormat) const;
    QNetworkRequest requestFor(const QString &address);
    QVAdvertisingInfo advertisingInfo() const;

    QString m_pubId;
    QString m_corvelId;
    QString m_subId1;
    QString m_gender;
    QString m_ageRange;
    QString m_subId2;
    QString m_subId3;
    QString m_subId4;

    QString m_baseAddress;
    QSslConfiguration m_sslConfiguration;
    AdvertisingInfoProvider m_advertisingInfoProvider;
    QNetworkAccessManager *m_network = nullptr;
    QString m_cachedApplicationName;
    QString m_cachedDeviceModel;
};
