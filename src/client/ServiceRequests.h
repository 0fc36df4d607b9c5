// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "HttpTransport.h"
#include "QuorvaRestAPI.h"

#include <functional>
#include <optional>

namespace quorva::detail {

// The publisher, wall and user a request is for. Work that runs beside the wall (a
// preload, a credits watcher) names its own instead of changing the shared client's.
struct ServiceIdentity
{
    QString pubId;
    QString corvelId;
    QString subId1;

    static ServiceIdentity of(const QuorvaRestAPI *api);
    bool isComplete() const { return !pubId.isNull() && !corvelId.isNull() && !subId1.isNull(); }
    friend bool operator==(const ServiceIdentity &, const ServiceIdentity &) = default;
};

// The requests of the shared client, with the identifiers given and everything else
// (address, targeting, limits, trust) taken from the client at the moment of the call.
struct ServiceRequests
{
    // One page of offers exactly as it would go on the wire; two equal requests are the
    // same bytes on the wire. Reads the advertising provider once.
    static TransferRequest offersRequest(QuorvaRestAPI *api, const ServiceIdentity &identity, quint64 offset,
                                         const QString &sortby, const QString &category, bool featured);
    static void sendOffers(QuorvaRestAPI *api, TransferRequest request, QuorvaRestAPI::OffersCallback callback,
                           QuorvaRestAPI::FailureCallback failure);

    // An unknown profile (404) is logged and reported as no profile.
    using ProfileOutcome = std::function<void(const std::optional<QVProfile> &profile)>;
    static void fetchProfile(QuorvaRestAPI *api, const ServiceIdentity &identity, ProfileOutcome callback,
                             QuorvaRestAPI::FailureCallback failure);

    // The history with its status, and no list when the body held none.
    using HistoryOutcome = std::function<void(int status, const std::optional<QList<QVTransaction>> &list)>;
    static void fetchHistory(QuorvaRestAPI *api, const ServiceIdentity &identity, HistoryOutcome callback,
                             QuorvaRestAPI::FailureCallback failure);
};

} // namespace quorva::detail
