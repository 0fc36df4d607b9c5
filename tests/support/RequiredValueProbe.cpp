// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// Calls a request of the client without one of its required values; the client must
// stop the program. Run by tst_QuorvaRestAPI as a child process.
#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString missing = app.arguments().value(1);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(QStringLiteral("127.0.0.1:9"));
    api->setPubId(QStringLiteral("1"));
    api->setCorvelId(QStringLiteral("2"));
    const QString given = QStringLiteral("given");
    if (missing == QLatin1String("subId1")) {
        api->fetchOffers(0, {}, {}, false, [](const QList<QVOffer> &, bool) {}, [] {});
    } else {
        api->setSubId1(given);
        api->createSupportTicket(missing == QLatin1String("name") ? QString() : given,
                                 missing == QLatin1String("emailId") ? QString() : given,
                                 missing == QLatin1String("subject") ? QString() : given, {}, {}, {},
                                 [](const QVariant &) {}, [] {});
    }
    // Reaching this line means the request was accepted.
    std::puts("request accepted");
    return 0;
}
