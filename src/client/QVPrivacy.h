// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

/// The user's privacy choices as the host knows them, passed on with every offers request
/// and obeyed by it. Set them on the shared client (QuorvaRestAPI::setPrivacy) before the
/// wall or its preload loads; a value set applies to every request started after it.
/// With nothing set, requests are exactly as without this type.
///
/// Personalisation is off, that is the all-zero advertising identifier, tracking "0" and
/// no gender or age range are sent, when the GDPR applies and consent is not Yes, when the
/// app or the user is treated as a child, or when the US privacy string opts out of sale.
/// advertisingIdOptOut alone withholds the identifier and keeps the targeting. When the
/// identifier is withheld, the host's advertising-information provider is not called.
/// Nothing of it is stored or logged by the library.
///
/// Its fields are fixed for all of 2.x; what a later release needs beside them comes as
/// a new type.
struct QVPrivacy
{
    /// A three-state answer: not known, yes or no.
    enum class Answer { Unknown, Yes, No };

    /// Does the GDPR apply to this user; sent as gdpr "1" or "0" when known.
    Answer gdprApplies = Answer::Unknown;
    /// Did the user consent to processing for advertising.
    Answer gdprConsent = Answer::Unknown;
    /// The IAB TCF v2 consent string, as the host's consent tool gives it; sent as
    /// gdpr_consent when not empty.
    QString gdprConsentString;
    /// The IAB US Privacy string, e.g. "1YNN"; sent as us_privacy when not empty. A third
    /// character "Y" (opted out of sale) turns personalisation off.
    QString usPrivacyString;
    /// The IAB GPP string; sent as gpp when not empty.
    QString gppString;
    /// The GPP string's applicable section ids, e.g. "2" or "7_8"; sent as gpp_sid.
    QString gppSectionIds;
    /// The app, or this user, is treated as directed at children.
    Answer childDirected = Answer::Unknown;
    /// The user is below the age of digital consent.
    Answer belowConsentAge = Answer::Unknown;
    /// The user opted out of the advertising identifier.
    bool advertisingIdOptOut = false;

    /// Field by field.
    friend bool operator==(const QVPrivacy &, const QVPrivacy &) = default;
};
