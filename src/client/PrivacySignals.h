// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVPrivacy.h"

#include <QtCore/QString>

namespace quorva::detail {

// What the offers request carries of the host's privacy signals, and what they withhold.
struct PrivacySignals
{
    // The pairs that follow the request's own, each with its leading "&", values
    // percent-encoded; empty when nothing is set.
    static QString queryPairs(const QVPrivacy &privacy);
    // False when the signals forbid personal data: the identifier, tracking and targeting.
    static bool allowPersonalisation(const QVPrivacy &privacy);
    // True when the advertising identifier (and so the provider) must not be read.
    static bool withholdIdentifier(const QVPrivacy &privacy);
    // The user opted out of sale in a US privacy string ("1YYN"); false for one that does
    // not parse, whose restriction cannot be read.
    static bool optsOutOfSale(const QString &usPrivacy);
};

} // namespace quorva::detail
