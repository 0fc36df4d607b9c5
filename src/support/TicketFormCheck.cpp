// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "TicketFormCheck.h"
#include "QVOfferDateCompletedView.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

namespace quorva::detail {

namespace {
constexpr const char *kContext = "TicketFormCheck";
constexpr const char *kInvalidName = QT_TRANSLATE_NOOP("TicketFormCheck", "Please enter a valid name");
constexpr const char *kInvalidEmail = QT_TRANSLATE_NOOP("TicketFormCheck", "Please enter a valid email");
constexpr const char *kInvalidOfferName = QT_TRANSLATE_NOOP("TicketFormCheck", "Please enter a valid offer name");
constexpr const char *kMissingDate = QT_TRANSLATE_NOOP("TicketFormCheck", "Please enter a date");
constexpr const char *kMissingComment = QT_TRANSLATE_NOOP("TicketFormCheck", "Please provide additional comments");

QString text(const char *source)
{
    return QCoreApplication::translate(kContext, source);
}
constexpr int kStateWithOfferDetails = 2;

const QRegularExpression kEmailPattern(
    QRegularExpression::anchoredPattern(QStringLiteral("[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,4}")));

bool isWhiteSpace(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}
} // namespace

QString trimmedOfWhiteSpace(const QString &text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && isWhiteSpace(text.at(start)))
        ++start;
    while (end > start && isWhiteSpace(text.at(end - 1)))
        --end;
    return text.mid(start, end - start);
}

bool isEmailAddress(const QString &text)
{
    return kEmailPattern.match(text).hasMatch();
}

TicketFormProblem firstProblem(const TicketFormInput &input)
{
    if (trimmedOfWhiteSpace(input.name).isEmpty())
        return {TicketField::Name, text(kInvalidName)};
    const QString email = trimmedOfWhiteSpace(input.email);
    if (email.isEmpty() || !isEmailAddress(email))
        return {TicketField::Email, text(kInvalidEmail)};
    if (input.state == kStateWithOfferDetails) {
        if (trimmedOfWhiteSpace(input.offerName).isEmpty())
            return {TicketField::OfferName, text(kInvalidOfferName)};
        // Only the button's title tells whether a date was given.
        if (input.dateTitle == QVOfferDateCompletedView::kPlaceholder)
            return {TicketField::Date, text(kMissingDate)};
    }
    if (trimmedOfWhiteSpace(input.comment).isEmpty())
        return {TicketField::Comment, text(kMissingComment)};
    return {};
}

} // namespace quorva::detail
