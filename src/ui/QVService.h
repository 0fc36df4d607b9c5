#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "QVOfferWallPreload.h"

// The shared client and the preload as QML reaches them: QVService.serviceBaseAddress,
// QVService.caCertificatesFile, QVService.transferTimeout, QVService.maximumReplySize and
// QVService.preload(pubId, corvelId, subId1). Every value lives on the shared client, so
// C++ and QML hosts see the same settings.
class QVService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString serviceBaseAddress READ serviceBaseAddress WRITE setServiceBaseAddress
                   NOTIFY serviceBaseAddressChanged FINAL)
    Q_PROPERTY(QString caCertificatesFile READ caCertificatesFile WRITE setCaCertificatesFile
                   NOTIFY caCertificatesFileChanged FINAL)
    Q_PROPERTY(int transferTimeout READ transferTimeout WRITE setTransferTimeout NOTIFY limitsChanged FINAL)
    Q_PROPERTY(qint64 maximumReplySize READ maximumReplySize WRITE setMaximumReplySize NOTIFY limitsChanged FINAL)

public:
    explicit QVService(QObject *parent = nullptr);

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

private:
    QString m_caCertificatesFile;
};
