// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Every reply parser on arbitrary bytes, under AddressSanitizer and
// UndefinedBehaviorSanitizer, and the two readers of the offers reply against each other:
// whenever the one-pass reader gives records, they are the general reader's records,
// field for field, with absent and empty texts kept apart.
#include "OffersReader.h"
#include "QVColor.h"
#include "ReplyParsers.h"
#include "ServiceTimestamp.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
QStringList fields(const QVOffer &offer)
{
    return {offer.offerId(), offer.offerName(), offer.offerDescription(), offer.currencyCount(), offer.imageURL(),
            offer.clickURL()};
}

[[noreturn]] void differ(const char *what, const QString &direct, const QString &general)
{
    std::fprintf(stderr, "the readers differ in %s: direct \"%s\"%s, general \"%s\"%s\n", what,
                 qPrintable(direct), direct.isNull() ? " (absent)" : "", qPrintable(general),
                 general.isNull() ? " (absent)" : "");
    std::abort();
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // Timestamps are converted to local time: one zone for every run.
    setenv("TZ", "UTC", 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), qsizetype(size));
    using namespace quorva::detail;

    if (const std::optional<QList<QVOffer>> direct = readOffersDirectly(body)) {
        const QList<QVOffer> general = parseOffersGenerally(body);
        if (direct->size() != general.size())
            differ("the number of records", QString::number(direct->size()), QString::number(general.size()));
        static const char *const names[] = {"offer_id", "name", "description", "currency_count", "image_url",
                                            "click_url"};
        for (qsizetype i = 0; i < general.size(); ++i) {
            const QStringList a = fields(direct->at(i));
            const QStringList b = fields(general.at(i));
            for (qsizetype f = 0; f < a.size(); ++f) {
                if (a[f] != b[f] || a[f].isNull() != b[f].isNull())
                    differ(names[f], a[f], b[f]);
            }
        }
    }

    (void)parseOffers(body);
    (void)parseProfile(body);
    (void)parseCategories(body);
    (void)parseTransactions(body);
    (void)parseTransactionList(body);
    (void)parseTicketId(body);
    const QString text = QString::fromUtf8(body);
    (void)displayTimestamp(text);
    (void)QVColor::colorFromHex(text);
    return 0;
}
