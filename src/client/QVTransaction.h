// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

/// One credited line of the user's history; timestamp is already display text.
/// A plain value type: copies are independent and cheap (implicitly shared strings). Its
/// fields are fixed for all of 2.x; what a later release adds comes as a new type.
class QUORVAMEDIA_EXPORT QVTransaction
{
    Q_GADGET
    QML_VALUE_TYPE(transaction)
    /// The name of the credited offer.
    Q_PROPERTY(QString offerName READ offerName WRITE setOfferName FINAL)
    /// When it was credited, as display text ("03/07/16").
    Q_PROPERTY(QString timestamp READ timestamp WRITE setTimestamp FINAL)
    /// The amount credited, as the reply gives it; negative for a reversal.
    Q_PROPERTY(QString currencyAdjustment READ currencyAdjustment WRITE setCurrencyAdjustment FINAL)

public:
    ///@{
    /// The fields, as the properties of the same names describe them.
    QString offerName() const { return m_offerName; }
    void setOfferName(const QString &value) { m_offerName = value; }
    QString timestamp() const { return m_timestamp; }
    void setTimestamp(const QString &value) { m_timestamp = value; }
    QString currencyAdjustment() const { return m_currencyAdjustment; }
    void setCurrencyAdjustment(const QString &value) { m_currencyAdjustment = value; }
    ///@}

    /// True when every field is equal.
    friend bool operator==(const QVTransaction &, const QVTransaction &) = default;

private:
    QString m_offerName;
    QString m_timestamp;
    QString m_currencyAdjustment;
};
