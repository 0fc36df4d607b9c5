// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ScriptedServer.h"
#include "Certificates.h"

#include <QtCore/QBuffer>
#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtGui/QImage>

using quorva::http::HttpRequest;
using quorva::http::HttpResponse;

ScriptedServer::ScriptedServer()
{
    const auto certificates = quorva::http::generateCertificates();
    m_ca = QSslCertificate::fromData(QByteArray::fromStdString(certificates.caCertificatePem));
    m_script = [](const HttpRequest &) { return HttpResponse::json(200, "{}"); };
    m_server = std::make_unique<quorva::http::HttpServer>(
        [this](const HttpRequest &request) {
            std::lock_guard lock(m_mutex);
            m_requests.push_back(request);
            return m_script(request);
        },
        certificates.server);
    m_port = m_server->listen("127.0.0.1", 0);
    m_server->start();
}

ScriptedServer::~ScriptedServer()
{
    m_server->stop();
}

QString ScriptedServer::baseAddress() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

void ScriptedServer::respond(int status, const QByteArray &body, const QByteArray &contentType)
{
    respond([status, body, contentType](const HttpRequest &) {
        HttpResponse response = HttpResponse::json(status, body.toStdString());
        response.contentType = contentType.toStdString();
        return response;
    });
}

void ScriptedServer::respond(Script script)
{
    std::lock_guard lock(m_mutex);
    m_script = std::move(script);
}

std::vector<HttpRequest> ScriptedServer::requests() const
{
    std::lock_guard lock(m_mutex);
    return m_requests;
}

HttpRequest ScriptedServer::lastRequest() const
{
    std::lock_guard lock(m_mutex);
    return m_requests.empty() ? HttpRequest() : m_requests.back();
}

int ScriptedServer::requestCount() const
{
    std::lock_guard lock(m_mutex);
    return static_cast<int>(m_requests.size());
}

QMap<QString, QString> rawQueryPairs(const std::string &query)
{
    QMap<QString, QString> pairs;
    const QStringList parts = QString::fromStdString(query).split(QLatin1Char('&'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const qsizetype eq = part.indexOf(QLatin1Char('='));
        pairs.insert(part.left(eq), eq < 0 ? QString() : part.mid(eq + 1));
    }
    return pairs;
}

void ScriptedServer::clearRequests()
{
    std::lock_guard lock(m_mutex);
    m_requests.clear();
}

QByteArray pngOf(const QColor &color, int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}
