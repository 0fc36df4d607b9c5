#include "TicketFormCheck.h"
#include "QVOfferDateCompletedView.h"

#include <QtCore/QRegularExpression>

namespace quorva::detail {

namespace {
constexpr QLatin1StringView kInvalidName("Please enter a valid name");
constexpr QLatin1StringView kInvalidEmail("Please enter a valid email");
constexpr QLatin1StringView kInvalidOfferName("Please enter a valid offer name");
constexpr QLatin1StringView kMissingDate("Please enter a date");
constexpr QLatin1StringView kMissingComment("Please provide additional comments");
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
        return {TicketField::Name, kInvalidName};
    const QString email = trimmedOfWhiteSpace(input.email);
    if (email.isEmpty() || !isEmailAddress(email))
        return {TicketField::Email, kInvalidEmail};
    if (input.state == kStateWithOfferDetails) {
        if (trimmedOfWhiteSpace(input.offerName).isEmpty())
            return {TicketField::OfferName, kInvalidOfferName};
        // Only the button's title tells whether a date was given.
        if (input.dateTitle == QVOfferDateCompletedView::kPlaceholder)
            return {TicketField::Date, kMissingDate};
    }
    if (trimmedOfWhiteSpace(input.comment).isEmpty())
        return {TicketField::Comment, kMissingComment};
    return {};
}

} // namespace quorva::detail
