// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVCategory.h"
#include "QVOffer.h"
#include "QVProfile.h"
#include "QVTransaction.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QVariant>

#include <optional>

// Turn reply bodies into records. A body that is not JSON, or JSON of another shape,
// yields empty results rather than an error: the caller decides by the status.
namespace quorva::detail {

QUORVAMEDIA_EXPORT QList<QVOffer> parseOffers(const QByteArray &body);
// The same records through a whole JSON document, for any body.
QUORVAMEDIA_EXPORT QList<QVOffer> parseOffersGenerally(const QByteArray &body);
QUORVAMEDIA_EXPORT QVProfile parseProfile(const QByteArray &body);
QUORVAMEDIA_EXPORT QList<QVCategory> parseCategories(const QByteArray &body);
QUORVAMEDIA_EXPORT QList<QVTransaction> parseTransactions(const QByteArray &body);
// The same records, or nothing when the body holds no list of transactions at all.
QUORVAMEDIA_EXPORT std::optional<QList<QVTransaction>> parseTransactionList(const QByteArray &body);
QUORVAMEDIA_EXPORT QVariant parseTicketId(const QByteArray &body);

} // namespace quorva::detail
