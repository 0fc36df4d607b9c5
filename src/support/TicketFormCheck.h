// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QString>

namespace quorva::detail {

// The ticket form's fields in the order they are checked.
enum class TicketField { None, Name, Email, OfferName, Date, Comment };

struct TicketFormInput
{
    QString name;
    QString email;
    QString offerName;
    QString dateTitle;  // the date button's title; the placeholder means no date
    QString comment;
    int state = 0;      // the offer name and the date are only checked in state 2
};

struct TicketFormProblem
{
    TicketField field = TicketField::None;
    QString message;    // what the user is told; empty when the form is fine
};

// The first field found wanting, in the fixed order name, e-mail, offer name, date,
// comment; later fields are not looked at.
QUORVAMEDIA_EXPORT TicketFormProblem firstProblem(const TicketFormInput &input);

// Without leading and trailing white space: blanks, tabs and the other Unicode space
// separators. Line breaks are not white space here and stay.
QUORVAMEDIA_EXPORT QString trimmedOfWhiteSpace(const QString &text);

// Letters, digits and ._%+- before one "@", letters, digits, "." and "-" after it, then a
// dot and two to four letters ending the text. Case-sensitive as written; the whole text
// must match.
QUORVAMEDIA_EXPORT bool isEmailAddress(const QString &text);

} // namespace quorva::detail
