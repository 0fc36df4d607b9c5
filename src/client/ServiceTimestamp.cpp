// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceTimestamp.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>

namespace quorva::detail {

namespace {
// The offset takes the numeric forms +0000 and +00:00, and a literal Z for UTC. \z, not
// $, so that nothing (not even a line break) may follow.
const QRegularExpression kServiceFormat(
    QStringLiteral(R"(^(\d{4})-(\d{2})-(\d{2})T(\d{2}):(\d{2}):(\d{2})(?:([+-])(\d{2}):?(\d{2})|Z)\z)"));
constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;
}

QString displayTimestamp(const QString &serviceTimestamp)
{
    const QRegularExpressionMatch match = kServiceFormat.match(serviceTimestamp);
    if (!match.hasMatch())
        return {};
    auto field = [&match](int index) { return match.capturedView(index).toInt(); };
    const QDate date(field(1), field(2), field(3));
    const QTime time(field(4), field(5), field(6));
    if (!date.isValid() || !time.isValid())
        return {};
    int offsetSeconds = 0;
    if (match.hasCaptured(7)) {
        const int hours = field(8);
        const int minutes = field(9);
        if (hours > 23 || minutes > 59)
            return {};
        offsetSeconds = (hours * 3600 + minutes * 60) * (match.capturedView(7) == u"-" ? -1 : 1);
    }
    // Through UTC by hand: a zone object refuses offsets beyond 14 hours.
    const QDateTime local = QDateTime(date, time, Qt::UTC).addSecs(-offsetSeconds).toLocalTime();
    if (!local.isValid() || local.date().year() < kFirstYear || local.date().year() > kLastYear)
        return {};
    const QTime t = local.time();
    const int hour12 = t.hour() % 12 == 0 ? 12 : t.hour() % 12;
    return QStringLiteral("%1/%2/%3 %4:%5:%6")
        .arg(local.date().month(), 2, 10, QLatin1Char('0'))
        .arg(local.date().day(), 2, 10, QLatin1Char('0'))
        .arg(local.date().year(), 4, 10, QLatin1Char('0'))
        .arg(hour12, 2, 10, QLatin1Char('0'))
        .arg(t.minute(), 2, 10, QLatin1Char('0'))
        .arg(t.second(), 2, 10, QLatin1Char('0'));
}

} // namespace quorva::detail
