#pragma once

#include "quorvamedia_global.h"
#include "QVOffer.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <optional>

namespace quorva::detail {

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
