// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "PrivacySignals.h"

#include <QtCore/QUrl>

namespace quorva::detail {

namespace {
using Answer = QVPrivacy::Answer;

namespace key {
constexpr QLatin1StringView gdpr("gdpr");
constexpr QLatin1StringView gdprConsent("gdpr_consent");
constexpr QLatin1StringView usPrivacy("us_privacy");
constexpr QLatin1StringView gpp("gpp");
constexpr QLatin1StringView gppSectionIds("gpp_sid");
constexpr QLatin1StringView coppa("coppa");
} // namespace key

// The US privacy string is version "1", then notice, opt-out of sale and the LSPA flag,
// each "Y", "N" or "-".
constexpr qsizetype kUsPrivacyLength = 4;
constexpr qsizetype kOptOutOfSale = 2;

void append(QString &query, QLatin1StringView name, const QString &value)
{
    if (value.isEmpty())
        return;
    // Consent tools write what they like: every byte but the unreserved ones is escaped,
    // so no value can add, split or end a pair.
    query += QLatin1Char('&') + name + QLatin1Char('=') + QString::fromLatin1(QUrl::toPercentEncoding(value));
}

QString flag(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

// "1" for a child, "0" when it is known not to be one, nothing when nobody said.
QString coppa(const QVPrivacy &privacy)
{
    if (privacy.childDirected == Answer::Yes || privacy.belowConsentAge == Answer::Yes)
        return flag(true);
    if (privacy.childDirected == Answer::No || privacy.belowConsentAge == Answer::No)
        return flag(false);
    return {};
}
} // namespace

QString PrivacySignals::queryPairs(const QVPrivacy &privacy)
{
    QString query;
    if (privacy.gdprApplies != Answer::Unknown)
        append(query, key::gdpr, flag(privacy.gdprApplies == Answer::Yes));
    append(query, key::gdprConsent, privacy.gdprConsentString);
    append(query, key::usPrivacy, privacy.usPrivacyString);
    append(query, key::gpp, privacy.gppString);
    append(query, key::gppSectionIds, privacy.gppSectionIds);
    append(query, key::coppa, coppa(privacy));
    return query;
}

bool PrivacySignals::optsOutOfSale(const QString &usPrivacy)
{
    if (usPrivacy.size() != kUsPrivacyLength || usPrivacy.at(0) != u'1')
        return false;
    for (qsizetype i = 1; i < kUsPrivacyLength; ++i) {
        const QChar c = usPrivacy.at(i).toUpper();
        if (c != u'Y' && c != u'N' && c != u'-')
            return false;
    }
    return usPrivacy.at(kOptOutOfSale).toUpper() == u'Y';
}

bool PrivacySignals::allowPersonalisation(const QVPrivacy &privacy)
{
    const bool withoutConsent = privacy.gdprApplies == Answer::Yes && privacy.gdprConsent != Answer::Yes;
    return !withoutConsent && coppa(privacy) != flag(true) && !optsOutOfSale(privacy.usPrivacyString);
}

bool PrivacySignals::withholdIdentifier(const QVPrivacy &privacy)
{
    return privacy.advertisingIdOptOut || !allowPersonalisation(privacy);
}

} // namespace quorva::detail
