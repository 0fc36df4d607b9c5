#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>

// Runs the quorva-sandbox executable on a free loopback port for the life of the object;
// the demo, the tests and the benchmarks all start their sandbox through it.
class SandboxProcess
{
public:
    // dataDirectory empty: a fresh temporary folder.
    explicit SandboxProcess(const QStringList &extraArguments = {}, const QString &dataDirectory = {});
    ~SandboxProcess();

    bool isRunning() const { return m_port != 0; }
    quint16 port() const { return m_port; }
    QString baseAddress() const;
    QList<QSslCertificate> caCertificates() const;
    void stop();

    // The sandbox built beside this one, or next to the running program.
    static QString executable();

private:
    QTemporaryDir m_tempDir;
    QString m_dataDirectory;
    QProcess m_process;
    quint16 m_port = 0;
};
