// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "QVAdvertisingInfo.h"
#include "QVOfferWallPreload.h"
#include "QVPrivacy.h"

// The shared client and the preload as QML reaches them: QVService.serviceBaseAddress,
// QVService.caCertificatesFile, QVService.transferTimeout, QVService.maximumReplySize,
// QVService.preload(pubId, corvelId, subId1), the user's privacy choices (the fields of
// QVPrivacy) and the advertising identifier with its tracking flag. Every value lives on
// the shared client, so C++ and QML hosts see the same settings.
class QVService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Answer gdprApplies READ gdprApplies WRITE setGdprApplies NOTIFY privacyChanged FINAL)
    Q_PROPERTY(Answer gdprConsent READ gdprConsent WRITE setGdprConsent NOTIFY privacyChanged FINAL)
    Q_PROPERTY(QString gdprConsentString READ gdprConsentString WRITE setGdprConsentString NOTIFY privacyChanged FINAL)
    Q_PROPERTY(QString usPrivacyString READ usPrivacyString WRITE setUsPrivacyString NOTIFY privacyChanged FINAL)
    Q_PROPERTY(QString gppString READ gppString WRITE setGppString NOTIFY privacyChanged FINAL)
    Q_PROPERTY(QString gppSectionIds READ gppSectionIds WRITE setGppSectionIds NOTIFY privacyChanged FINAL)
    Q_PROPERTY(Answer childDirected READ childDirected WRITE setChildDirected NOTIFY privacyChanged FINAL)
    Q_PROPERTY(Answer belowConsentAge READ belowConsentAge WRITE setBelowConsentAge NOTIFY privacyChanged FINAL)
    Q_PROPERTY(bool advertisingIdOptOut READ advertisingIdOptOut WRITE setAdvertisingIdOptOut
                   NOTIFY privacyChanged FINAL)
    // The identifier and tracking flag a QML host read from the platform; sent with every
    // offers request like a C++ host's provider (setting either replaces that provider).
    Q_PROPERTY(QString advertisingIdentifier READ advertisingIdentifier WRITE setAdvertisingIdentifier
                   NOTIFY advertisingChanged FINAL)
    Q_PROPERTY(bool trackingEnabled READ trackingEnabled WRITE setTrackingEnabled NOTIFY advertisingChanged FINAL)
    Q_PROPERTY(QString serviceBaseAddress READ serviceBaseAddress WRITE setServiceBaseAddress
                   NOTIFY serviceBaseAddressChanged FINAL)
    Q_PROPERTY(QString caCertificatesFile READ caCertificatesFile WRITE setCaCertificatesFile
                   NOTIFY caCertificatesFileChanged FINAL)
    Q_PROPERTY(int transferTimeout READ transferTimeout WRITE setTransferTimeout NOTIFY limitsChanged FINAL)
    Q_PROPERTY(qint64 maximumReplySize READ maximumReplySize WRITE setMaximumReplySize NOTIFY limitsChanged FINAL)

public:
    // QVPrivacy::Answer as QML names it: QVService.Unknown, QVService.Yes, QVService.No.
    enum Answer { Unknown = int(QVPrivacy::Answer::Unknown), Yes = int(QVPrivacy::Answer::Yes),
                  No = int(QVPrivacy::Answer::No) };
    Q_ENUM(Answer)

    explicit QVService(QObject *parent = nullptr);

    Answer gdprApplies() const { return Answer(privacy().gdprApplies); }
    void setGdprApplies(Answer value);
    Answer gdprConsent() const { return Answer(privacy().gdprConsent); }
    void setGdprConsent(Answer value);
    QString gdprConsentString() const { return privacy().gdprConsentString; }
    void setGdprConsentString(const QString &value);
    QString usPrivacyString() const { return privacy().usPrivacyString; }
    void setUsPrivacyString(const QString &value);
    QString gppString() const { return privacy().gppString; }
    void setGppString(const QString &value);
    QString gppSectionIds() const { return privacy().gppSectionIds; }
    void setGppSectionIds(const QString &value);
    Answer childDirected() const { return Answer(privacy().childDirected); }
    void setChildDirected(Answer value);
    Answer belowConsentAge() const { return Answer(privacy().belowConsentAge); }
    void setBelowConsentAge(Answer value);
    bool advertisingIdOptOut() const { return privacy().advertisingIdOptOut; }
    void setAdvertisingIdOptOut(bool value);
    QString advertisingIdentifier() const { return m_advertising.identifier; }
    void setAdvertisingIdentifier(const QString &identifier);
    bool trackingEnabled() const { return m_advertising.trackingEnabled; }
    void setTrackingEnabled(bool enabled);

    QString serviceBaseAddress() const;
    void setServiceBaseAddress(const QString &address);
    QString caCertificatesFile() const { return m_caCertificatesFile; }
    // Trusts the certificates of a PEM file (a path or a file: URL) besides the system's.
    void setCaCertificatesFile(const QString &file);
    int transferTimeout() const;
    void setTransferTimeout(int milliseconds);
    qint64 maximumReplySize() const;
    void setMaximumReplySize(qint64 bytes);

    // The preload for the identifiers, owned by the library; a wall declared later for
    // them takes it.
    Q_INVOKABLE QVOfferWallPreload *preload(const QString &pubId, const QString &corvelId, const QString &subId1);

signals:
    void serviceBaseAddressChanged();
    void caCertificatesFileChanged();
    void limitsChanged();
    void privacyChanged();
    void advertisingChanged();

private:
    static QVPrivacy privacy();
    template <typename Value>
    void setPrivacyField(Value QVPrivacy::*field, const Value &value);
    void setAdvertising(const QVAdvertisingInfo &advertising);

    QString m_caCertificatesFile;
    QVAdvertisingInfo m_advertising;
};
