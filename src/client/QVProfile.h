// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QMetaType>
#include <QtCore/QString>

/// Display settings of an offer-wall profile.
/// A plain value type: copies are independent and cheap (implicitly shared strings). Its
/// fields are fixed for all of 2.x; what a later release adds comes as a new type.
class QUORVAMEDIA_EXPORT QVProfile
{
    Q_GADGET
    /// Whether the wall shows the currency name in its title.
    Q_PROPERTY(bool showCurrency READ showCurrency WRITE setShowCurrency FINAL)
    /// The name of the app's currency, such as "Gems".
    Q_PROPERTY(QString currencyName READ currencyName WRITE setCurrencyName FINAL)

public:
    ///@{
    /// The fields, as the properties of the same names describe them.
    bool showCurrency() const { return m_showCurrency; }
    void setShowCurrency(bool value) { m_showCurrency = value; }
    QString currencyName() const { return m_currencyName; }
    void setCurrencyName(const QString &value) { m_currencyName = value; }
    ///@}

    /// True when every field is equal.
    friend bool operator==(const QVProfile &, const QVProfile &) = default;

private:
    bool m_showCurrency = false;
    QString m_currencyName;
};
