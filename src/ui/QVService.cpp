// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVService.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"
#include "QVOffersViewController.h"
#include "QVOfferWallPreload.h"

#include <QtCore/QFile>
#include <QtCore/QUrl>
#include <QtNetwork/QSslCertificate>
#include <QtQml/QQmlEngine>

QVService::QVService(QObject *parent) : QObject(parent) {}

QString QVService::serviceBaseAddress() const { return QuorvaRestAPI::sharedInstance()->serviceBaseAddress(); }

void QVService::setServiceBaseAddress(const QString &address)
{
    const QString before = serviceBaseAddress();
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(address);
    if (serviceBaseAddress() != before)
        emit serviceBaseAddressChanged();
}

void QVService::setCaCertificatesFile(const QString &file)
{
    if (m_caCertificatesFile == file)
        return;
    m_caCertificatesFile = file;
    const QUrl url(file);
    const QString path = url.isLocalFile() ? url.toLocalFile() : file;
    const QList<QSslCertificate> certificates = QSslCertificate::fromPath(path, QSsl::Pem);
    if (certificates.isEmpty())
        qCWarning(lcQuorvaDiagnostics).noquote()
            << "caCertificatesFile" << path << "holds no PEM certificate: the service's own CA is not trusted";
    else
        QuorvaRestAPI::sharedInstance()->addCaCertificates(certificates);
    emit caCertificatesFileChanged();
}

int QVService::transferTimeout() const { return int(QuorvaRestAPI::sharedInstance()->transferTimeout().count()); }

void QVService::setTransferTimeout(int milliseconds)
{
    if (transferTimeout() == milliseconds)
        return;
    QuorvaRestAPI::sharedInstance()->setTransferTimeout(std::chrono::milliseconds(milliseconds));
    emit limitsChanged();
}

qint64 QVService::maximumReplySize() const { return QuorvaRestAPI::sharedInstance()->maximumReplySize(); }

void QVService::setMaximumReplySize(qint64 bytes)
{
    if (maximumReplySize() == bytes)
        return;
    QuorvaRestAPI::sharedInstance()->setMaximumReplySize(bytes);
    emit limitsChanged();
}

QVOfferWallPreload *QVService::preload(const QString &pubId, const QString &corvelId, const QString &subId1)
{
    QVOfferWallPreload *preload = QVOffersViewController::preloadForPublisherId(pubId, corvelId, subId1);
    if (preload)
        QQmlEngine::setObjectOwnership(preload, QQmlEngine::CppOwnership);
    return preload;
}

QVPrivacy QVService::privacy()
{
    return QuorvaRestAPI::sharedInstance()->privacy();
}

template <typename Value>
void QVService::setPrivacyField(Value QVPrivacy::*field, const Value &value)
{
    QVPrivacy privacy = QVService::privacy();
    if (privacy.*field == value)
        return;
    privacy.*field = value;
    QuorvaRestAPI::sharedInstance()->setPrivacy(privacy);
    emit privacyChanged();
}

void QVService::setGdprApplies(Answer value) { setPrivacyField(&QVPrivacy::gdprApplies, QVPrivacy::Answer(value)); }
void QVService::setGdprConsent(Answer value) { setPrivacyField(&QVPrivacy::gdprConsent, QVPrivacy::Answer(value)); }
void QVService::setGdprConsentString(const QString &value) { setPrivacyField(&QVPrivacy::gdprConsentString, value); }
void QVService::setUsPrivacyString(const QString &value) { setPrivacyField(&QVPrivacy::usPrivacyString, value); }
void QVService::setGppString(const QString &value) { setPrivacyField(&QVPrivacy::gppString, value); }
void QVService::setGppSectionIds(const QString &value) { setPrivacyField(&QVPrivacy::gppSectionIds, value); }
void QVService::setChildDirected(Answer value) { setPrivacyField(&QVPrivacy::childDirected, QVPrivacy::Answer(value)); }
void QVService::setBelowConsentAge(Answer value)
{
    setPrivacyField(&QVPrivacy::belowConsentAge, QVPrivacy::Answer(value));
}
void QVService::setAdvertisingIdOptOut(bool value) { setPrivacyField(&QVPrivacy::advertisingIdOptOut, value); }

void QVService::setAdvertisingIdentifier(const QString &identifier)
{
    setAdvertising({identifier, m_advertising.trackingEnabled});
}

void QVService::setTrackingEnabled(bool enabled)
{
    setAdvertising({m_advertising.identifier, enabled});
}

void QVService::setAdvertising(const QVAdvertisingInfo &advertising)
{
    if (advertising.identifier == m_advertising.identifier && advertising.trackingEnabled == m_advertising.trackingEnabled)
        return;
    m_advertising = advertising;
    // A copy of the values, read on the worker pool like any provider.
    QuorvaRestAPI::sharedInstance()->setAdvertisingInfoProvider([advertising] { return advertising; });
    emit advertisingChanged();
}
