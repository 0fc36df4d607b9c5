// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SandboxProcess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

#ifndef QUORVA_SANDBOX_EXECUTABLE
#error "QUORVA_SANDBOX_EXECUTABLE must name the sandbox binary"
#endif

SandboxProcess::SandboxProcess(const QStringList &extraArguments, const QString &dataDirectory, int openFileLimit)
    : m_dataDirectory(dataDirectory.isEmpty() ? m_tempDir.path() : dataDirectory)
{
    m_process.setChildProcessModifier([openFileLimit] {
        // The sandbox goes away with its parent, even when the parent crashes.
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (openFileLimit > 0) {
            const rlimit limit{rlim_t(openFileLimit), rlim_t(openFileLimit)};
            ::setrlimit(RLIMIT_NOFILE, &limit);
        }
    });
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(executable(), QStringList{QStringLiteral("--port"), QStringLiteral("0"),
                                              QStringLiteral("--data-dir"), m_dataDirectory,
                                              QStringLiteral("--quiet")} + extraArguments);
    if (!m_process.waitForStarted(10000))
        return;
    static const QRegularExpression listening(QStringLiteral(R"(listening on [^:]+:(\d+))"));
    QByteArray output;
    while (m_process.waitForReadyRead(30000)) {
        output += m_process.readAllStandardOutput();
        const auto match = listening.match(QString::fromUtf8(output));
        if (match.hasMatch()) {
            m_port = static_cast<quint16>(match.captured(1).toUInt());
            return;
        }
    }
}

SandboxProcess::~SandboxProcess()
{
    stop();
}

void SandboxProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(10000))
        m_process.kill();
    m_process.waitForFinished(5000);
    m_port = 0;
}

QString SandboxProcess::baseAddress() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QList<QSslCertificate> SandboxProcess::caCertificates() const
{
    return QSslCertificate::fromPath(m_dataDirectory + QStringLiteral("/ca.pem"));
}

QString SandboxProcess::executable()
{
    const QString built = QStringLiteral(QUORVA_SANDBOX_EXECUTABLE);
    if (QFileInfo::exists(built))
        return built;
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("quorva-sandbox"));
}
