// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

/// One offer of the wall, as the offers reply describes it.
/// A plain value type: copies are independent and cheap (implicitly shared strings). Its
/// fields are fixed for all of 2.x; what a later release adds comes as a new type.
class QUORVAMEDIA_EXPORT QVOffer
{
    Q_GADGET
    QML_VALUE_TYPE(offer)
    /// The service's identifier of the offer.
    Q_PROPERTY(QString offerId READ offerId WRITE setOfferId FINAL)
    /// The offer's name, as the cell shows it.
    Q_PROPERTY(QString offerName READ offerName WRITE setOfferName FINAL)
    /// What the user does to earn the reward.
    Q_PROPERTY(QString offerDescription READ offerDescription WRITE setOfferDescription FINAL)
    /// The reward in the app's currency, as the reply gives it (digits).
    Q_PROPERTY(QString currencyCount READ currencyCount WRITE setCurrencyCount FINAL)
    /// The address of the offer's picture.
    Q_PROPERTY(QString imageURL READ imageURL WRITE setImageURL FINAL)
    /// The address opened in the browser when the user takes the offer.
    Q_PROPERTY(QString clickURL READ clickURL WRITE setClickURL FINAL)

public:
    ///@{
    /// The fields, as the properties of the same names describe them.
    QString offerId() const { return m_offerId; }
    void setOfferId(const QString &value) { m_offerId = value; }
    QString offerName() const { return m_offerName; }
    void setOfferName(const QString &value) { m_offerName = value; }
    QString offerDescription() const { return m_offerDescription; }
    void setOfferDescription(const QString &value) { m_offerDescription = value; }
    QString currencyCount() const { return m_currencyCount; }
    void setCurrencyCount(const QString &value) { m_currencyCount = value; }
    QString imageURL() const { return m_imageURL; }
    void setImageURL(const QString &value) { m_imageURL = value; }
    QString clickURL() const { return m_clickURL; }
    void setClickURL(const QString &value) { m_clickURL = value; }
    ///@}

    /// True when every field is equal.
    friend bool operator==(const QVOffer &, const QVOffer &) = default;

private:
    QString m_offerId;
    QString m_offerName;
    QString m_offerDescription;
    QString m_currencyCount;
    QString m_imageURL;
    QString m_clickURL;
};
