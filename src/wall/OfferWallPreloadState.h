// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVOfferWallPreload.h"
#include "QVOffer.h"
#include "QVProfile.h"
#include "ServiceRequests.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>
#include <optional>

class QQmlComponent;
class QQmlIncubator;

struct QVOfferWallPreload::Private
{
    enum class Reply { Pending, Arrived, Failed };

    quorva::detail::ServiceIdentity identity;
    // What went on the wire for the first page: a wall takes the preload only when its
    // own first request would be the same.
    QString firstPageAddress;
    QByteArray firstPageUserAgent;
    QElapsedTimer age;

    bool incomplete = false;
    Reply offersReply = Reply::Pending;
    QList<QVOffer> offers;
    bool moreOffers = false;
    Reply profileReply = Reply::Pending;
    // Absent after arrival when the service did not know the profile.
    std::optional<QVProfile> profile;

    bool taken = false;
    bool replaced = false;
    bool reportedReady = false;
    bool reportedFailed = false;

    int buildStep = 0;
    QTimer buildTimer;
    QPointer<QQmlComponent> component;
    std::unique_ptr<QQmlIncubator> incubator;
    QPointer<QQuickItem> builtWall;

    bool pending() const { return offersReply == Reply::Pending || profileReply == Reply::Pending; }
    bool failed() const
    {
        return incomplete || offersReply == Reply::Failed || profileReply == Reply::Failed;
    }
};

namespace quorva::detail {
// How long a preload may be taken after its requests went out; five minutes unless a
// test shortens it.
QUORVAMEDIA_EXPORT void setPreloadMaximumAge(std::chrono::milliseconds age);
} // namespace quorva::detail
