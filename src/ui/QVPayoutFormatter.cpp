// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVPayoutFormatter.h"

namespace {
constexpr int kMaximumFractionDigits = 3;
constexpr QLatin1Char kGroupingSeparator(',');
constexpr QLatin1StringView kPayoutFormat("+%1");
} // namespace

QVPayoutFormatter::QVPayoutFormatter(const QLocale &locale) : m_locale(locale)
{
    m_locale.setNumberOptions(m_locale.numberOptions() & ~QLocale::OmitGroupSeparator);
}

QString QVPayoutFormatter::format(double amount) const
{
    QString text = m_locale.toString(amount, 'f', kMaximumFractionDigits);
    const QString decimal = m_locale.decimalPoint();
    const qsizetype point = text.lastIndexOf(decimal);
    if (point >= 0) {
        qsizetype end = text.size();
        while (end > point + decimal.size() && text.at(end - 1) == m_locale.zeroDigit().at(0))
            --end;
        if (end == point + decimal.size())
            end = point;
        text.truncate(end);
    }
    const QString group = m_locale.groupSeparator();
    QString integerPart = point >= 0 ? text.left(qMin(point, text.size())) : text;
    const QString rest = point >= 0 ? text.mid(integerPart.size()) : QString();
    integerPart.replace(group, QString(kGroupingSeparator));
    if (integerPart == QLatin1String("-0"))
        integerPart = QStringLiteral("0");
    return integerPart + rest;
}

QString QVPayoutFormatter::payoutTitle(const QString &currencyCount) const
{
    bool ok = false;
    const double amount = currencyCount.trimmed().toDouble(&ok);
    return QString(kPayoutFormat).arg(format(ok ? amount : 0.0));
}
