#include "DemoSandbox.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

#include <csignal>
#include <sys/prctl.h>

DemoSandbox::DemoSandbox(const QStringList &extraArguments) : m_extraArguments(extraArguments) {}

DemoSandbox::~DemoSandbox()
{
    m_process.terminate();
    if (!m_process.waitForFinished(5000))
        m_process.kill();
}

bool DemoSandbox::start()
{
    const QString executable = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../sandbox/quorva-sandbox"));
    // The sandbox goes away with its parent, even when the parent crashes.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(executable, QStringList{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--quiet"),
                                            QStringLiteral("--data-dir"), m_data.path()} + m_extraArguments);
    if (!m_process.waitForStarted(10000))
        return false;
    static const QRegularExpression listening(QStringLiteral(R"(listening on [^:]+:(\d+))"));
    QByteArray output;
    while (m_process.waitForReadyRead(30000)) {
        output += m_process.readAllStandardOutput();
        const auto match = listening.match(QString::fromUtf8(output));
        if (match.hasMatch()) {
            m_port = quint16(match.captured(1).toUInt());
            return true;
        }
    }
    return false;
}

QString DemoSandbox::baseAddress() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QList<QSslCertificate> DemoSandbox::caCertificates() const
{
    return QSslCertificate::fromPath(m_data.filePath(QStringLiteral("ca.pem")));
}
