// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ScriptedServer.h"
#include "Certificates.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtGui/QColor>

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

namespace {
void appendBigEndian(QByteArray &bytes, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(char((value >> shift) & 0xff));
}

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xffffffffu;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

void appendChunk(QByteArray &png, const char *type, const QByteArray &data)
{
    appendBigEndian(png, quint32(data.size()));
    const QByteArray typed = QByteArray(type) + data;
    png += typed;
    appendBigEndian(png, crc32(typed));
}
} // namespace

// Written by hand: Qt's image writer loads every image plugin to offer it the format,
// and a suite that checks what the wall loads must not have them loaded by its fixtures.
QByteArray pngOf(const QColor &color, int side)
{
    QByteArray header;
    appendBigEndian(header, quint32(side));
    appendBigEndian(header, quint32(side));
    header.append("\x08\x06\x00\x00\x00", 5); // 8 bits, RGBA, deflate, no filter, no interlace
    const char rgba[] = {char(color.red()), char(color.green()), char(color.blue()), char(color.alpha())};
    const QByteArray pixel(rgba, sizeof rgba);
    const QByteArray row = QByteArray(1, '\0') + pixel.repeated(side); // each row unfiltered
    QByteArray png("\x89PNG\r\n\x1a\n");
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", qCompress(row.repeated(side), 9).mid(4)); // a zlib stream after qCompress's length
    appendChunk(png, "IEND", {});
    return png;
}
