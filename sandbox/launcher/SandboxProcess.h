// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

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
    // dataDirectory empty: a fresh temporary folder. openFileLimit above 0 caps the
    // number of file handles the sandbox may hold (to test running out of them).
    explicit SandboxProcess(const QStringList &extraArguments = {}, const QString &dataDirectory = {},
                            int openFileLimit = 0);
    ~SandboxProcess();

    bool isRunning() const { return m_port != 0; }
    quint16 port() const { return m_port; }
    // True while the process runs (it may have stopped serving).
    bool processAlive() const { return m_process.state() == QProcess::Running; }
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
