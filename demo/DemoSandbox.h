#pragma once

#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>

// Runs quorva-sandbox beside the demo on a free loopback port.
class DemoSandbox
{
public:
    explicit DemoSandbox(const QStringList &extraArguments = {});
    ~DemoSandbox();
    bool start();
    QString baseAddress() const;
    QList<QSslCertificate> caCertificates() const;

private:
    QStringList m_extraArguments;
    QTemporaryDir m_data;
    QProcess m_process;
    quint16 m_port = 0;
};
