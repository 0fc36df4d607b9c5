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
