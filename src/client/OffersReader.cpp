// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "OffersReader.h"
#include "JsonValues.h"

#include <QtCore/QJsonDocument>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace quorva::detail {

namespace {
enum Field { OfferId, Name, Description, CurrencyCount, ImageUrl, ClickUrl, FieldCount };
constexpr std::string_view view(QLatin1StringView key)
{
    return {key.data(), std::size_t(key.size())};
}
constexpr std::array<std::string_view, FieldCount> kFieldKeys{
    view(offerKey::offerId),       view(offerKey::name),     view(offerKey::description),
    view(offerKey::currencyCount), view(offerKey::imageUrl), view(offerKey::clickUrl)};
constexpr std::string_view kOffersKey = view(offerKey::offers);
constexpr int kMaxDepth = 256;

// The service sends scheme-relative picture addresses; a missing one still yields an
// address (that loads nothing), as the wall expects one per offer.
constexpr QLatin1StringView kImageScheme("https:");
constexpr QLatin1StringView kAbsentText("(null)");

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

class Reader
{
public:
    Reader(const char *begin, const char *end) : m_p(begin), m_end(end) {}

    std::optional<QList<QVOffer>> offers()
    {
        QList<QVOffer> result;
        bool seenOffers = false;
        if (!consume('{'))
            return std::nullopt;
        if (!consume('}')) {
            do {
                std::string_view name;
                if (!plainKey(name) || !consume(':'))
                    return std::nullopt;
                if (name != kOffersKey) {
                    if (!skipValue(1))
                        return std::nullopt;
                    continue;
                }
                if (std::exchange(seenOffers, true))
                    return std::nullopt;
                if (!peek('[')) {
                    if (!skipValue(1))
                        return std::nullopt;
                    continue;
                }
                if (!offerList(result))
                    return std::nullopt;
            } while (consume(','));
            if (!consume('}'))
                return std::nullopt;
        }
        skipSpace();
        if (m_p != m_end)
            return std::nullopt;
        return result;
    }

private:
    bool offerList(QList<QVOffer> &result)
    {
        ++m_p; // '['
        if (consume(']'))
            return true;
        result.reserve(32);
        do {
            if (peek('{')) {
                OfferFields fields;
                if (!offerObject(fields))
                    return false;
                result.append(offerFromFields(std::move(fields)));
            } else if (!skipValue(2)) {
                return false;
            }
        } while (consume(','));
        return consume(']');
    }

    bool offerObject(OfferFields &fields)
    {
        ++m_p; // '{'
        if (consume('}'))
            return true;
        unsigned seen = 0;
        do {
            std::string_view name;
            if (!plainKey(name) || !consume(':'))
                return false;
            int field = 0;
            while (field < FieldCount && kFieldKeys[field] != name)
                ++field;
            if (field == FieldCount) {
                if (!skipValue(3))
                    return false;
                continue;
            }
            if (seen & (1u << field))
                return false; // which of two values counts is the general reader's call
            seen |= 1u << field;
            if (!fieldValue(Field(field), fields))
                return false;
        } while (consume(','));
        return consume('}');
    }

    // A value of the wrong type leaves the field absent.
    bool fieldValue(Field field, OfferFields &fields)
    {
        skipSpace();
        if (m_p >= m_end)
            return false;
        const bool isString = *m_p == '"';
        const bool isNumber = *m_p == '-' || isDigit(*m_p);
        QString *target = nullptr;
        switch (field) {
        case OfferId: target = isString || isNumber ? &fields.offerId : nullptr; break;
        case Name: target = isString ? &fields.name : nullptr; break;
        case Description: target = isString ? &fields.description : nullptr; break;
        case CurrencyCount: target = isNumber ? &fields.currencyCount : nullptr; break;
        case ImageUrl: target = isString ? &fields.imageUrl : nullptr; break;
        case ClickUrl: target = isString ? &fields.clickUrl : nullptr; break;
        case FieldCount: break;
        }
        if (!target)
            return skipValue(3);
        return isString ? string(target) : number(target);
    }

    void skipSpace()
    {
        while (m_p < m_end && (*m_p == ' ' || *m_p == '\n' || *m_p == '\r' || *m_p == '\t'))
            ++m_p;
    }

    bool peek(char c)
    {
        skipSpace();
        return m_p < m_end && *m_p == c;
    }

    bool consume(char c)
    {
        if (!peek(c))
            return false;
        ++m_p;
        return true;
    }

    // A key that is plain ASCII without escapes; any other key is left to the general
    // reader, as it might spell one of ours.
    bool plainKey(std::string_view &name)
    {
        if (!consume('"'))
            return false;
        const char *start = m_p;
        while (m_p < m_end && *m_p != '"') {
            const auto c = static_cast<unsigned char>(*m_p);
            if (c == '\\' || c < 0x20 || c >= 0x80)
                return false;
            ++m_p;
        }
        if (m_p >= m_end)
            return false;
        name = std::string_view(start, std::size_t(m_p - start));
        ++m_p;
        return true;
    }

    // A string value; with no target it is only checked.
    bool string(QString *target)
    {
        if (!consume('"'))
            return false;
        const char *start = m_p;
        bool plain = true;
        while (m_p < m_end && *m_p != '"') {
            const auto c = static_cast<unsigned char>(*m_p);
            if (c < 0x20)
                return false;
            if (c == '\\') {
                plain = false;
                if (++m_p >= m_end)
                    return false;
            } else if (c >= 0x80) {
                plain = false;
            }
            ++m_p;
        }
        if (m_p >= m_end)
            return false;
        const char *stop = m_p++;
        if (plain) {
            if (target)
                *target = QString::fromLatin1(start, stop - start);
            return true;
        }
        QString decoded;
        if (!decode(start, stop, decoded))
            return false;
        if (target)
            *target = std::move(decoded);
        return true;
    }

    static bool decode(const char *p, const char *end, QString &out)
    {
        out.reserve(end - p);
        while (p < end) {
            const char *run = p;
            while (p < end && *p != '\\')
                ++p;
            if (p > run) {
                const QByteArray bytes = QByteArray::fromRawData(run, p - run);
                if (!bytes.isValidUtf8())
                    return false;
                out += QString::fromUtf8(bytes);
            }
            if (p == end)
                break;
            ++p; // the backslash
            switch (*p++) {
            case '"': out += u'"'; break;
            case '\\': out += u'\\'; break;
            case '/': out += u'/'; break;
            case 'b': out += u'\b'; break;
            case 'f': out += u'\f'; break;
            case 'n': out += u'\n'; break;
            case 'r': out += u'\r'; break;
            case 't': out += u'\t'; break;
            case 'u': {
                if (end - p < 4)
                    return false;
                int code = 0;
                for (int i = 0; i < 4; ++i) {
                    const int digit = hexValue(*p++);
                    if (digit < 0)
                        return false;
                    code = code * 16 + digit;
                }
                // Surrogates and NUL are rare enough to leave to the general reader.
                if (code == 0 || QChar::isSurrogate(char16_t(code)))
                    return false;
                out += QChar(char16_t(code));
                break;
            }
            default:
                return false;
            }
        }
        return true;
    }

    // A number, strictly as JSON writes it; its text as the general reader gives it.
    bool number(QString *target)
    {
        skipSpace();
        const char *start = m_p;
        if (m_p < m_end && *m_p == '-')
            ++m_p;
        if (m_p >= m_end)
            return false;
        if (*m_p == '0') {
            ++m_p;
        } else if (isDigit(*m_p)) {
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        } else {
            return false;
        }
        bool integral = true;
        if (m_p < m_end && *m_p == '.') {
            integral = false;
            if (++m_p >= m_end || !isDigit(*m_p))
                return false;
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        }
        if (m_p < m_end && (*m_p == 'e' || *m_p == 'E')) {
            integral = false;
            if (++m_p < m_end && (*m_p == '+' || *m_p == '-'))
                ++m_p;
            if (m_p >= m_end || !isDigit(*m_p))
                return false;
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        }
        if (integral) {
            qint64 whole = 0;
            const auto [end, error] = std::from_chars(start, m_p, whole);
            if (error == std::errc() && end == m_p) {
                if (target)
                    *target = json::numberText(QJsonValue(whole));
                return true;
            }
        }
        // A number no double can hold, skipped or not, is the general reader's call: it
        // refuses the whole reply.
        double value = 0;
        const auto [end, error] = std::from_chars(start, m_p, value);
        if (error != std::errc() || end != m_p || !std::isfinite(value))
            return false;
        if (target)
            *target = generalNumberText(std::string_view(start, std::size_t(m_p - start)));
        return true;
    }

    // The text the general reader gives the number: it turns an integral double that
    // fits into an integer, so its text must come from the same parse. Rare in a reply,
    // so its cost does not matter.
    static QString generalNumberText(std::string_view number)
    {
        QByteArray document;
        document.reserve(qsizetype(number.size()) + 2);
        document.append('[').append(number.data(), qsizetype(number.size())).append(']');
        return json::numberText(QJsonDocument::fromJson(document).array().at(0));
    }

    bool literal(std::string_view word)
    {
        if (std::size_t(m_end - m_p) < word.size() || std::string_view(m_p, word.size()) != word)
            return false;
        m_p += word.size();
        return true;
    }

    bool skipValue(int depth)
    {
        if (depth > kMaxDepth)
            return false;
        skipSpace();
        if (m_p >= m_end)
            return false;
        switch (*m_p) {
        case '"':
            return string(nullptr);
        case '{':
            ++m_p;
            if (consume('}'))
                return true;
            do {
                if (!string(nullptr) || !consume(':') || !skipValue(depth + 1))
                    return false;
            } while (consume(','));
            return consume('}');
        case '[':
            ++m_p;
            if (consume(']'))
                return true;
            do {
                if (!skipValue(depth + 1))
                    return false;
            } while (consume(','));
            return consume(']');
        case 't':
            return literal("true");
        case 'f':
            return literal("false");
        case 'n':
            return literal("null");
        default:
            return number(nullptr);
        }
    }

    const char *m_p;
    const char *m_end;
};
} // namespace

QVOffer offerFromFields(OfferFields &&fields)
{
    QVOffer offer;
    offer.setOfferId(std::move(fields.offerId));
    offer.setOfferName(std::move(fields.name));
    offer.setOfferDescription(std::move(fields.description));
    QString image;
    image.reserve(kImageScheme.size() + (fields.imageUrl.isNull() ? kAbsentText.size() : fields.imageUrl.size()));
    image += kImageScheme;
    if (fields.imageUrl.isNull())
        image += kAbsentText;
    else
        image += fields.imageUrl;
    offer.setImageURL(image);
    offer.setClickURL(std::move(fields.clickUrl));
    offer.setCurrencyCount(std::move(fields.currencyCount));
    return offer;
}

std::optional<QList<QVOffer>> readOffersDirectly(const QByteArray &body)
{
    return Reader(body.constData(), body.constData() + body.size()).offers();
}

} // namespace quorva::detail
