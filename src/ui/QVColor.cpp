// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVColor.h"

#include <limits>

namespace {
// Unicode symbol categories are skipped before the number (so "$A53838" reads);
// white space is not.
bool isSymbol(QChar c)
{
    switch (c.category()) {
    case QChar::Symbol_Math:
    case QChar::Symbol_Currency:
    case QChar::Symbol_Modifier:
    case QChar::Symbol_Other:
        return true;
    default:
        return false;
    }
}

int hexDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}
} // namespace

QColor QVColor::colorFromHex(const QString &text)
{
    QString rest = text;
    rest.remove(QLatin1Char('#'));
    qsizetype i = 0;
    while (i < rest.size() && isSymbol(rest.at(i)))
        ++i;
    // An optional 0x prefix counts only when a digit follows it.
    if (rest.mid(i, 2).compare(QLatin1String("0x"), Qt::CaseInsensitive) == 0 && i + 2 < rest.size()
        && hexDigit(rest.at(i + 2)) >= 0)
        i += 2;
    quint64 value = 0;
    bool any = false;
    for (; i < rest.size(); ++i) {
        const int digit = hexDigit(rest.at(i));
        if (digit < 0)
            break;
        any = true;
        value = value * 16 + static_cast<quint64>(digit);
        if (value > std::numeric_limits<quint32>::max())
            value = std::numeric_limits<quint32>::max() + quint64(1); // saturates below
    }
    if (!any)
        return {};
    const quint32 v = value > std::numeric_limits<quint32>::max() ? std::numeric_limits<quint32>::max()
                                                                  : static_cast<quint32>(value);
    // Components are computed in single precision, then widened.
    auto component = [](quint32 byte) { return static_cast<float>(byte) / 255.0f; };
    return QColor::fromRgbF(component((v >> 16) & 0xFF), component((v >> 8) & 0xFF), component(v & 0xFF), 1.0f);
}
