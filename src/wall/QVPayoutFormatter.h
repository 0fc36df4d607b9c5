#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QLocale>
#include <QtCore/QString>

// The payout button's text: "+" and the amount with "," grouping whatever the
// locale's own grouping, while the decimal separator stays the locale's. Up to three
// fraction digits, trailing zeros dropped. Text that is not a number reads as 0.
class QUORVAMEDIA_EXPORT QVPayoutFormatter
{
public:
    explicit QVPayoutFormatter(const QLocale &locale = QLocale());
    QString payoutTitle(const QString &currencyCount) const;
    QString format(double amount) const;

private:
    QLocale m_locale;
};
