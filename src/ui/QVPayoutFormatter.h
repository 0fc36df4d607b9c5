// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QLocale>
#include <QtCore/QString>

// A payout as the wall and the history show it: "+" and the amount with "," grouping
// whatever the locale's own grouping, while the decimal separator stays the locale's.
// Up to three fraction digits, trailing zeros dropped. Text that is not a number reads
// as 0, and a negative amount keeps its sign behind the "+".
class QUORVAMEDIA_EXPORT QVPayoutFormatter
{
public:
    explicit QVPayoutFormatter(const QLocale &locale = QLocale());
    QString payoutTitle(const QString &currencyCount) const;
    QString format(double amount) const;

private:
    QLocale m_locale;
};
