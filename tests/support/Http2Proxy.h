// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>

// A real HTTP/2 server on loopback: nghttpx (Debian's nghttp2-proxy) terminating TLS with
// ALPN h2 in front of a plain HTTP/1.1 backend on this machine, for the life of the object.
class Http2Proxy
{
public:
    explicit Http2Proxy(quint16 backendPort);
    ~Http2Proxy();

    bool isRunning() const { return m_port != 0; }
    quint16 port() const { return m_port; }
    QList<QSslCertificate> caCertificates() const { return m_ca; }
    // What nghttpx said, when it did not start.
    QString output() const { return m_output; }

private:
    QTemporaryDir m_dir;
    QProcess m_process;
    QList<QSslCertificate> m_ca;
    QString m_output;
    quint16 m_port = 0;
};
