// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVAdvertisingInfo.h"
#include "QVCategory.h"
#include "QVOffer.h"
#include "QVPrivacy.h"
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

class QuorvaRestAPIPrivate;

/// The one client of the offer service. Holds the publisher, profile and user identifiers
/// and the targeting values; every request is asynchronous and reports back on the GUI
/// thread, always after the call that started it has returned. Every request ends in
/// exactly one callback: a reply with any HTTP status is a response; a transport failure,
/// the transfer time-out or the size cap is a failure. The ticket goes on the wire once,
/// on a fresh connection. A GET goes on a kept connection, and once more on a fresh one
/// when a reused connection lost it before any byte of its reply.
class QUORVAMEDIA_EXPORT QuorvaRestAPI : public QObject
{
    Q_OBJECT

public:
    /// Receives a page of offers and whether the service may have another page.
    using OffersCallback = std::function<void(const QList<QVOffer> &offers, bool more)>;
    /// Receives the publisher's profile (its currency name).
    using ProfileCallback = std::function<void(const QVProfile &profile)>;
    /// Receives the offer categories.
    using CategoriesCallback = std::function<void(const QList<QVCategory> &categories)>;
    /// Receives the user's credited transactions, newest first.
    using HistoryCallback = std::function<void(const QList<QVTransaction> &transactions)>;
    /// Receives the service's identifier of a ticket it stored.
    using TicketCallback = std::function<void(const QVariant &ticketId)>;
    /// Called instead of the success callback when a request fails.
    using FailureCallback = std::function<void()>;
    /// Gives the device's advertising identifier and whether tracking is allowed.
    using AdvertisingInfoProvider = std::function<QVAdvertisingInfo()>;

    /// The transfer time-out until one is set.
    static constexpr std::chrono::milliseconds kDefaultTransferTimeout{60000};
    /// The largest reply taken until a cap is set, in bytes.
    static constexpr qint64 kDefaultMaximumReplySize = 4 * 1024 * 1024;

    /// The client every wall uses; created on first use and kept for the life of the
    /// process. Call its functions on the GUI thread.
    static QuorvaRestAPI *sharedInstance();
    /// The shared client lives until the process ends; a host never deletes it.
    ~QuorvaRestAPI() override;

    /// Worker pool from which requests are sent and on which replies are parsed; the same
    /// pool for every instance.
    QThreadPool *connectionQueue() const;

    ///@{
    /// The identifiers and targeting values sent with the requests: publisher, wall and
    /// user identifiers, gender ("m" or "f"), age range and the host's pass-through
    /// values. A value set applies to every request started after it.
    QString pubId() const;
    void setPubId(const QString &value);
    QString corvelId() const;
    void setCorvelId(const QString &value);
    QString subId1() const;
    void setSubId1(const QString &value);
    QString gender() const;
    void setGender(const QString &value);
    QString ageRange() const;
    void setAgeRange(const QString &value);
    QString subId2() const;
    void setSubId2(const QString &value);
    QString subId3() const;
    void setSubId3(const QString &value);
    QString subId4() const;
    void setSubId4(const QString &value);
    ///@}

    /// "host" or "host:port"; both schemes go to the same host and port.
    void setServiceBaseAddress(const QString &hostAndOptionalPort);
    /// The address set with setServiceBaseAddress().
    QString serviceBaseAddress() const;

    /// Extra certificate authorities trusted by every request of the library (REST and
    /// pictures), on top of the system's. Certificate checks are never switched off.
    void addCaCertificates(const QList<QSslCertificate> &certificates);

    /// How long a request may take from its start to the last byte of the reply before
    /// it ends in the failure callback (60 s unless set).
    void setTransferTimeout(std::chrono::milliseconds timeout);
    /// The transfer time-out set with setTransferTimeout().
    std::chrono::milliseconds transferTimeout() const;
    /// The most a reply (head and body) may hold; a larger one is stopped and ends in
    /// the failure callback (4 MiB unless set).
    void setMaximumReplySize(qint64 bytes);
    /// The cap set with setMaximumReplySize(), in bytes.
    qint64 maximumReplySize() const;

    /// Read anew for every offers request, on the worker pool (the platforms' calls that
    /// read the identifier block and refuse the GUI thread), so it must be safe to call
    /// from any thread. Not called at all while the privacy signals withhold the
    /// identifier. Without a provider the all-zero identifier is sent and tracking counts
    /// as not allowed.
    void setAdvertisingInfoProvider(AdvertisingInfoProvider provider);

    /// The user's privacy choices, sent with every offers request started after this call
    /// and obeyed by it (see QVPrivacy). Unset, requests are as they always were.
    void setPrivacy(const QVPrivacy &privacy);
    /// The privacy choices set with setPrivacy().
    QVPrivacy privacy() const;

    /// The address base followed by the parameters as a query string, values as given,
    /// in the map's order.
    QString urlString(const QString &base, const std::optional<QVariantMap> &params) const;
    /// The User-Agent header every request carries: the host's name and version, the
    /// device model and the library's version.
    QString customUserAgent();
    /// A service timestamp ("2016-03-07T10:20:30+02:00") as the history shows it
    /// ("03/07/16"); empty when it cannot be read.
    QString dateStringFromString(const QString &timestamp) const;

    /// Requests the page of offers that starts at the offset, sorted and filtered as
    /// given (empty: the service's default; featured: only featured offers). subId1 must
    /// be set: a null one stops the program (qFatal, in every build type).
    void fetchOffers(quint64 offset, const QString &sortby, const QString &category, bool featured,
                     OffersCallback callback, FailureCallback failure);
    /// Requests the publisher's profile. It goes over plain http (the service serves the
    /// profile there), to the same host and port as the others; an unknown profile (404)
    /// calls neither callback.
    void fetchProfile(ProfileCallback callback, FailureCallback failure);
    /// Requests the offer categories.
    void fetchCategories(CategoriesCallback callback, FailureCallback failure);
    /// Requests the user's credited history; "no content" is an empty history.
    void fetchHistory(HistoryCallback callback, FailureCallback failure);
    /// Files a support ticket. Name, e-mail and subject must be set (a null one stops the
    /// program, qFatal, in every build type); the offer name and
    /// completion date go only when not empty. Succeeds only when the service answers
    /// 201; a failure never sends the ticket again.
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


    Q_DECLARE_PRIVATE_D(m_d, QuorvaRestAPI)
    std::unique_ptr<QuorvaRestAPIPrivate> m_d;
};
