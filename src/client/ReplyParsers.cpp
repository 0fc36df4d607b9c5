// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ReplyParsers.h"
#include "JsonValues.h"
#include "OffersReader.h"
#include "ServiceTimestamp.h"

#include <QtCore/QJsonDocument>

namespace quorva::detail {

namespace {
namespace key {
constexpr QLatin1StringView name("name");
constexpr QLatin1StringView profile("profile");
constexpr QLatin1StringView settings("settings");
constexpr QLatin1StringView currency("currency");
constexpr QLatin1StringView visible("visible");
constexpr QLatin1StringView id("id");
constexpr QLatin1StringView transactions("transactions");
constexpr QLatin1StringView offerName("offer_name");
constexpr QLatin1StringView timestamp("timestamp");
constexpr QLatin1StringView currencyAdjustment("currency_adjustment");
constexpr QLatin1StringView ticketId("ticket_id");
} // namespace key

QJsonValue topLevel(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (document.isObject())
        return document.object();
    if (document.isArray())
        return document.array();
    return {};
}

// Elements of a list that are not objects are skipped rather than read as empty records.
template <typename Record, typename Build>
QList<Record> records(const QJsonArray &list, Build build)
{
    QList<Record> result;
    result.reserve(list.size());
    for (const QJsonValue &element : list) {
        if (element.isObject())
            result.append(build(element.toObject()));
    }
    return result;
}
} // namespace

QList<QVOffer> parseOffersGenerally(const QByteArray &body)
{
    const QJsonArray list = json::array(json::object(topLevel(body)).value(offerKey::offers));
    return records<QVOffer>(list, [](const QJsonObject &o) {
        return offerFromFields({json::stringOrNumberText(o.value(offerKey::offerId)),
                                json::string(o.value(offerKey::name)), json::string(o.value(offerKey::description)),
                                json::numberText(o.value(offerKey::currencyCount)),
                                json::string(o.value(offerKey::imageUrl)), json::string(o.value(offerKey::clickUrl))});
    });
}

QList<QVOffer> parseOffers(const QByteArray &body)
{
    // Pages come often and are plain; the direct reader takes them, and anything it
    // is unsure of goes the general way.
    if (std::optional<QList<QVOffer>> offers = readOffersDirectly(body))
        return *std::move(offers);
    return parseOffersGenerally(body);
}

QVProfile parseProfile(const QByteArray &body)
{
    const QJsonObject currency = json::object(json::object(json::object(
        json::object(topLevel(body)).value(key::profile)).value(key::settings)).value(key::currency));
    QVProfile profile;
    profile.setShowCurrency(json::truth(currency.value(key::visible)));
    profile.setCurrencyName(json::string(currency.value(key::name)));
    return profile;
}

QList<QVCategory> parseCategories(const QByteArray &body)
{
    return records<QVCategory>(json::array(topLevel(body)), [](const QJsonObject &o) {
        QVCategory category;
        category.setCategoryId(json::numberText(o.value(key::id)));
        category.setCategoryName(json::string(o.value(key::name)));
        return category;
    });
}

std::optional<QList<QVTransaction>> parseTransactionList(const QByteArray &body)
{
    const QJsonValue list = json::object(topLevel(body)).value(key::transactions);
    if (!list.isArray())
        return std::nullopt;
    return records<QVTransaction>(list.toArray(), [](const QJsonObject &o) {
        QVTransaction transaction;
        transaction.setOfferName(json::string(o.value(key::offerName)));
        transaction.setTimestamp(displayTimestamp(json::string(o.value(key::timestamp))));
        transaction.setCurrencyAdjustment(json::numberText(o.value(key::currencyAdjustment)));
        return transaction;
    });
}

QList<QVTransaction> parseTransactions(const QByteArray &body)
{
    return parseTransactionList(body).value_or(QList<QVTransaction>());
}

QVariant parseTicketId(const QByteArray &body)
{
    const QJsonValue id = json::object(topLevel(body)).value(key::ticketId);
    return id.isUndefined() || id.isNull() ? QVariant() : id.toVariant();
}

} // namespace quorva::detail
