// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVPictureNetwork.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkRequest>
#include <QtNetwork/QSslConfiguration>

namespace {
QSslConfiguration &pictureTrust()
{
    static QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    return configuration;
}
} // namespace

void QVPictureNetwork::addCaCertificates(const QList<QSslCertificate> &certificates)
{
    pictureTrust().addCaCertificates(certificates);
}

QNetworkReply *QVPictureNetwork::get(const QUrl &url)
{
    Q_ASSERT(QThread::currentThread() == QCoreApplication::instance()->thread());
    static QNetworkAccessManager *network = [] {
        auto *manager = new QNetworkAccessManager;
        // Gone while the application still is: its connection threads close their TLS
        // sockets as they end, and after the application that would reach a TLS
        // backend Qt has already unloaded.
        qAddPostRoutine([] { delete network; });
        return manager;
    }();
    QNetworkRequest request(url);
    request.setSslConfiguration(pictureTrust());
    return network->get(request);
}
