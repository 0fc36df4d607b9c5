// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SandboxCredits.h"
#include "SandboxProcess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslConfiguration>

void creditUser(const SandboxProcess &sandbox, const QString &wallId, const QString &user, const QString &offerName, int amount,
                std::function<void(bool stored)> done)
{
    // One manager per credit, gone with its reply: a manager left to the end of the
    // program would close its TLS connections after Qt's TLS backend is unloaded.
    auto *network = new QNetworkAccessManager;
    QNetworkRequest request(QUrl(QStringLiteral("https://%1/sandbox/publisher/1042/profile/%2/user/%3/credits.json")
                                     .arg(sandbox.baseAddress(), wallId, user)));
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.addCaCertificates(sandbox.caCertificates());
    request.setSslConfiguration(trust);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const QJsonObject body{{QStringLiteral("offer_name"), offerName}, {QStringLiteral("currency_adjustment"), amount}};
    QNetworkReply *reply = network->post(request, QJsonDocument(body).toJson(QJsonDocument::Compact));
    QObject::connect(reply, &QNetworkReply::finished, reply, [network, reply, done = std::move(done)] {
        done(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 201);
        reply->deleteLater();
        network->deleteLater();
    });
}
