// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "HttpServer.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtNetwork/QSslCertificate>

#include <functional>
#include <mutex>
#include <vector>

// A real HTTP/HTTPS server on loopback that answers what a test scripts and records
// what it received. Runs on a thread of its own.
class ScriptedServer
{
public:
    using Script = std::function<quorva::http::HttpResponse(const quorva::http::HttpRequest &)>;

    ScriptedServer();
    ~ScriptedServer();

    quint16 port() const { return m_port; }
    QString baseAddress() const;
    QList<QSslCertificate> caCertificates() const { return m_ca; }

    // Every following request gets this answer.
    void respond(int status, const QByteArray &body, const QByteArray &contentType = "application/json");
    void respond(Script script);

    std::vector<quorva::http::HttpRequest> requests() const;
    quorva::http::HttpRequest lastRequest() const;
    int requestCount() const;
    void clearRequests();

private:
    mutable std::mutex m_mutex;
    Script m_script;
    std::vector<quorva::http::HttpRequest> m_requests;
    QList<QSslCertificate> m_ca;
    std::unique_ptr<quorva::http::HttpServer> m_server;
    quint16 m_port = 0;
};

// A square PNG of one colour.
QByteArray pngOf(const QColor &color, int side = 8);

// Splits a raw query ("a=1&b=2") into its pairs, exactly as written on the wire.
QMap<QString, QString> rawQueryPairs(const std::string &query);
