// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Http2Proxy.h"
#include "Certificates.h"

#include <QtCore/QFile>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

namespace {
void write(const QString &path, const std::string &text)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.data(), qint64(text.size()));
}

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}
} // namespace

Http2Proxy::Http2Proxy(quint16 backendPort)
{
    const quorva::http::GeneratedCertificates certificates = quorva::http::generateCertificates();
    m_ca = QSslCertificate::fromData(QByteArray::fromStdString(certificates.caCertificatePem));
    const QString key = m_dir.filePath(QStringLiteral("key.pem"));
    const QString chain = m_dir.filePath(QStringLiteral("chain.pem"));
    write(key, certificates.server.privateKeyPem);
    write(chain, certificates.server.certificateChainPem);
    const quint16 port = freePort();
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(QStringLiteral("nghttpx"),
                    {QStringLiteral("--frontend=127.0.0.1,%1").arg(port),
                     QStringLiteral("--backend=127.0.0.1,%1;;proto=http/1.1").arg(backendPort),
                     QStringLiteral("--single-thread"), QStringLiteral("--no-ocsp"),
                     QStringLiteral("--log-level=WARN"), QStringLiteral("--errorlog-file=/dev/stderr"),
                     QStringLiteral("--conf=/dev/null"), key, chain});
    if (!m_process.waitForStarted(10000)) {
        m_output = QStringLiteral("nghttpx could not be started");
        return;
    }
    // Ready once it accepts connections.
    const bool listening = QTest::qWaitFor([&] {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, port);
        return socket.waitForConnected(200) || m_process.state() != QProcess::Running;
    }, 20000);
    if (listening && m_process.state() == QProcess::Running)
        m_port = port;
    else
        m_output = QString::fromUtf8(m_process.readAll());
}

Http2Proxy::~Http2Proxy()
{
    m_process.terminate();
    if (!m_process.waitForFinished(10000))
        m_process.kill();
}
