// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// quorva-sandbox: a local stand-in for the offer service, for the demo and the tests.
#include "Certificates.h"
#include "HttpServer.h"
#include "SandboxService.h"
#include "SandboxStore.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtGui/QGuiApplication>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

using namespace quorva;

namespace {
http::HttpServer *g_server = nullptr;

void stopOnSignal(int)
{
    if (g_server)
        g_server->stop();
}

QString defaultDataDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quorva-sandbox");
}
} // namespace

int main(int argc, char **argv)
{
    // Pictures are drawn with Qt's raster painter; no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorva-sandbox"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Local stand-in for the QuorvaMedia offer service (HTTP and HTTPS on one port)."));
    parser.addHelpOption();
    const QCommandLineOption address(QStringLiteral("address"), QStringLiteral("Address to listen on (0.0.0.0: every interface). Its certificate names it too."), QStringLiteral("ip"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption name(QStringLiteral("name"), QStringLiteral("A host name or address the certificate names besides loopback (repeatable): how a phone on the network reaches this machine."), QStringLiteral("host"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Port (0 picks a free one)."), QStringLiteral("port"), QStringLiteral("8443"));
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Folder of the database and certificates."), QStringLiteral("dir"), defaultDataDirectory());
    const QCommandLineOption caOut(QStringLiteral("ca-out"), QStringLiteral("Also write the CA certificate to this file."), QStringLiteral("file"));
    const QCommandLineOption latency(QStringLiteral("latency"), QStringLiteral("Delay every answer by this many milliseconds."), QStringLiteral("ms"), QStringLiteral("0"));
    const QCommandLineOption drop(QStringLiteral("drop-connections"), QStringLiteral("Close every connection instead of answering."));
    const QCommandLineOption dropEvery(QStringLiteral("drop-every"), QStringLiteral("Close the connection of every Nth request."), QStringLiteral("n"), QStringLiteral("0"));
    const QCommandLineOption status(QStringLiteral("force-status"), QStringLiteral("Answer every request with this HTTP status."), QStringLiteral("code"));
    const QCommandLineOption body(QStringLiteral("broken-body"), QStringLiteral("Break reply bodies: truncated or not-json."), QStringLiteral("kind"));
    const QCommandLineOption faultFile(QStringLiteral("fault-file"), QStringLiteral("Read faults from this file on every request, so they can change while running (key=value lines: latency, drop, drop-every, status, body, path)."), QStringLiteral("file"));
    const QCommandLineOption faultPath(QStringLiteral("fault-path"), QStringLiteral("Apply faults only to paths containing this text."), QStringLiteral("text"));
    const QCommandLineOption closeIdle(QStringLiteral("close-idle"), QStringLiteral("Close each kept-alive connection after its answer, as an idle time-out would."));
    const QCommandLineOption dropReused(QStringLiteral("drop-reused"), QStringLiteral("Hang up, unanswered, on every request that arrives on a kept-alive connection."));
    const QCommandLineOption requestsPerConnection(QStringLiteral("requests-per-connection"), QStringLiteral("Close a kept-alive connection after this many requests."), QStringLiteral("n"), QStringLiteral("100"));
    const QCommandLineOption quiet(QStringLiteral("quiet"), QStringLiteral("Do not log requests."));
    const QCommandLineOption requestLog(QStringLiteral("request-log"), QStringLiteral("Also append each request's line to this file."), QStringLiteral("file"));
    const QCommandLineOption handshakeTimeout(QStringLiteral("handshake-timeout"), QStringLiteral("Close a connection whose TLS handshake takes longer (ms)."), QStringLiteral("ms"), QStringLiteral("10000"));
    const QCommandLineOption headerTimeout(QStringLiteral("header-timeout"), QStringLiteral("Close a connection whose next request head takes longer (ms)."), QStringLiteral("ms"), QStringLiteral("15000"));
    const QCommandLineOption bodyTimeout(QStringLiteral("body-timeout"), QStringLiteral("Close a connection whose request body takes longer (ms)."), QStringLiteral("ms"), QStringLiteral("30000"));
    parser.addOptions({address, name, port, dataDir, caOut, latency, drop, dropEvery, status, body, faultPath, faultFile, quiet,
                       closeIdle, dropReused, requestsPerConnection,
                       handshakeTimeout, headerTimeout, bodyTimeout, requestLog});
    parser.process(app);

    sandbox::FaultOptions faults;
    faults.latency = std::chrono::milliseconds(parser.value(latency).toInt());
    faults.dropConnections = parser.isSet(drop);
    faults.dropEvery = parser.value(dropEvery).toInt();
    if (parser.isSet(status))
        faults.forcedStatus = parser.value(status).toInt();
    if (parser.value(body) == QLatin1String("truncated"))
        faults.body = sandbox::FaultOptions::Body::Truncated;
    else if (parser.value(body) == QLatin1String("not-json"))
        faults.body = sandbox::FaultOptions::Body::NotJson;
    else if (parser.isSet(body)) {
        std::cerr << "quorva-sandbox: --broken-body takes truncated or not-json\n";
        return 2;
    }
    faults.pathFilter = parser.value(faultPath).toStdString();
    faults.closeIdle = parser.isSet(closeIdle);
    faults.dropReused = parser.isSet(dropReused);

    try {
        const std::string directory = QDir(parser.value(dataDir)).absolutePath().toStdString();
        std::vector<std::string> names;
        const QString listenAddress = parser.value(address);
        if (listenAddress != QLatin1String("0.0.0.0") && listenAddress != QLatin1String("::"))
            names.push_back(listenAddress.toStdString());
        for (const QString &extra : parser.values(name))
            names.push_back(extra.toStdString());
        const http::GeneratedCertificates certificates = http::loadOrCreateCertificates(directory, names);
        if (parser.isSet(caOut)) {
            std::ofstream(parser.value(caOut).toStdString(), std::ios::trunc) << certificates.caCertificatePem;
        }
        sandbox::SandboxStore store(directory + "/sandbox.sqlite");
        const bool logRequests = !parser.isSet(quiet);
        std::ofstream requestFile;
        if (parser.isSet(requestLog))
            requestFile.open(parser.value(requestLog).toStdString(), std::ios::app);
        sandbox::SandboxService service(store, faults, [logRequests, &requestFile](const std::string &line) {
            if (requestFile.is_open())
                requestFile << line << '\n' << std::flush;
            if (logRequests)
                std::cout << line << std::endl;
        });
        if (parser.isSet(faultFile))
            service.setFaultFile(parser.value(faultFile).toStdString());
        http::ServerLimits limits;
        limits.handshake = std::chrono::milliseconds(parser.value(handshakeTimeout).toInt());
        limits.header = std::chrono::milliseconds(parser.value(headerTimeout).toInt());
        limits.body = std::chrono::milliseconds(parser.value(bodyTimeout).toInt());
        limits.requestsPerConnection = std::max(1u, parser.value(requestsPerConnection).toUInt());
        http::HttpServer server([&service](const http::HttpRequest &r) { return service.handle(r); },
                                certificates.server, limits);
        const auto bound = server.listen(parser.value(address).toStdString(),
                                         static_cast<std::uint16_t>(parser.value(port).toUInt()));
        std::cout << "quorva-sandbox listening on " << parser.value(address).toStdString() << ":" << bound
                  << std::endl;
        std::cout << "CA certificate: " << directory << "/ca.pem" << std::endl;
        std::cout << "certificate names: " << http::subjectAltNames(names) << std::endl;
        g_server = &server;
        std::signal(SIGINT, stopOnSignal);
        std::signal(SIGTERM, stopOnSignal);
        server.run();
        g_server = nullptr;
    } catch (const std::exception &e) {
        std::cerr << "quorva-sandbox: " << e.what() << std::endl;
        return 1;
    }
    return 0;
}
