// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVOffer.h"

#include <QtCore/QByteArray>
#include <QtCore/QLatin1StringView>
#include <QtCore/QList>

#include <optional>

namespace quorva::detail {

// The keys of an offers reply, which both of its readers look for.
namespace offerKey {
inline constexpr QLatin1StringView offers("offers");
inline constexpr QLatin1StringView offerId("offer_id");
inline constexpr QLatin1StringView name("name");
inline constexpr QLatin1StringView description("description");
inline constexpr QLatin1StringView currencyCount("currency_count");
inline constexpr QLatin1StringView imageUrl("image_url");
inline constexpr QLatin1StringView clickUrl("click_url");
} // namespace offerKey

// What an offer object of the reply holds, before it becomes a record.
struct OfferFields
{
    QString offerId;
    QString name;
    QString description;
    QString currencyCount;
    QString imageUrl;
    QString clickUrl;
};

QVOffer offerFromFields(OfferFields &&fields);

// Reads an offers reply in one pass over its bytes, building the records without an
// intermediate JSON document. It gives no result for anything it cannot read with
// certainty (escaped or repeated keys, invalid text, escaped surrogates, deep nesting,
// a top level that is not an object); the caller then reads the reply the general way,
// so the records are the same either way.
QUORVAMEDIA_EXPORT std::optional<QList<QVOffer>> readOffersDirectly(const QByteArray &body);

} // namespace quorva::detail
