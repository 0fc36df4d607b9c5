// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ConsoleReport.h"
#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMap>

#include <cstdio>
#include <functional>

namespace {
// Runs one request and waits for whichever callback comes.
bool await(const std::function<void(std::function<void()> done)> &request)
{
    bool finished = false;
    request([&finished] { finished = true; });
    QElapsedTimer timer;
    timer.start();
    while (!finished && timer.elapsed() < 15000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return finished;
}

void printOffers(const char *title, const QList<QVOffer> &offers, bool more)
{
    std::printf("%s: %lld offers, more: %s\n", title, static_cast<long long>(offers.size()), more ? "yes" : "no");
    for (qsizetype i = 0; i < qMin<qsizetype>(offers.size(), 3); ++i) {
        const QVOffer &o = offers[i];
        std::printf("  #%s %-18s +%-6s %s\n", qPrintable(o.offerId()), qPrintable(o.offerName()),
                    qPrintable(o.currencyCount()), qPrintable(o.offerDescription()));
    }
    if (offers.size() > 3)
        std::printf("  ...\n");
}
} // namespace

int printConsoleReport(SandboxProcess &sandbox)
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setServiceBaseAddress(sandbox.baseAddress());
    api->addCaCertificates(sandbox.caCertificates());
    api->setPubId(QStringLiteral("1042"));
    api->setCorvelId(QStringLiteral("7"));
    api->setSubId1(QStringLiteral("user-1"));
    int failures = 0;
    auto failed = [&failures](const char *what, std::function<void()> done) {
        return [&failures, what, done] {
            std::printf("%s: request failed\n", what);
            ++failures;
            done();
        };
    };

    // A host preloads at start, so the wall is ready before the user opens it.
    QElapsedTimer preloading;
    preloading.start();
    QVOfferWallPreload *preload = QVOffersViewController::preloadForPublisherId(
        QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
    const bool preloaded = await([preload](auto done) {
        QObject::connect(preload, &QVOfferWallPreload::stateChanged, preload, [preload, done] {
            if (preload->isReady() || preload->isFailed())
                done();
        });
    }) && preload->isReady();
    std::printf("preload: %s in %.1f ms, offers: %s\n", preloaded ? "ready" : "FAILED",
                double(preloading.nsecsElapsed()) / 1e6, preload->hasOffers() ? "yes" : "no");
    failures += preloaded ? 0 : 1;

    std::printf("User-Agent: %s\n", qPrintable(api->customUserAgent()));
    await([&](auto done) {
        api->fetchProfile([done](const QVProfile &p) {
            std::printf("profile: currency \"%s\", shown: %s\n", qPrintable(p.currencyName()), p.showCurrency() ? "yes" : "no");
            done();
        }, failed("profile", done));
    });
    for (int page = 0; page < 2; ++page) {
        await([&](auto done) {
            api->fetchOffers(quint64(page * 30), {}, {}, false, [done, page](const QList<QVOffer> &offers, bool more) {
                printOffers(page == 0 ? "offers page 1" : "offers page 2", offers, more);
                done();
            }, failed("offers", done));
        });
    }
    // The same wall in an app for children: what the sandbox leaves out for a child.
    auto everyOffer = [&](const QVPrivacy &privacy) {
        api->setPrivacy(privacy);
        QStringList names;
        bool more = true;
        for (quint64 offset = 0; more && offset < 3000; offset += 30) {
            if (!await([&](auto done) {
                    api->fetchOffers(offset, {}, {}, false, [&, done](const QList<QVOffer> &offers, bool m) {
                        for (const QVOffer &offer : offers)
                            names.append(offer.offerName());
                        more = m;
                        done();
                    }, failed("offers", [&more, done] { more = false; done(); }));
                }))
                break;
        }
        api->setPrivacy({});
        return names;
    };
    QVPrivacy child;
    child.childDirected = QVPrivacy::Answer::Yes;
    const QStringList forEveryone = everyOffer({});
    const QStringList forAChild = everyOffer(child);
    QMap<QString, int> gone;
    for (const QString &name : forEveryone)
        gone[name] += forAChild.contains(name) ? 0 : 1;
    QStringList goneNames;
    for (auto it = gone.cbegin(); it != gone.cend(); ++it) {
        if (it.value() > 0)
            goneNames << QStringLiteral("%1 (%2)").arg(it.key()).arg(it.value());
    }
    std::printf("a wall for a child (coppa=1, no advertising identifier, no targeting): %lld of %lld offers; gone: %s\n",
                static_cast<long long>(forAChild.size()), static_cast<long long>(forEveryone.size()),
                goneNames.isEmpty() ? "nothing" : qPrintable(goneNames.join(QStringLiteral(", "))));
    failures += forAChild.isEmpty() || goneNames.isEmpty() ? 1 : 0;

    await([&](auto done) {
        api->fetchCategories([done](const QList<QVCategory> &categories) {
            QStringList names;
            for (const QVCategory &c : categories)
                names << QStringLiteral("%1 %2").arg(c.categoryId(), c.categoryName());
            std::printf("categories: %s\n", qPrintable(names.join(QStringLiteral(", "))));
            done();
        }, failed("categories", done));
    });
    await([&](auto done) {
        api->fetchHistory([done](const QList<QVTransaction> &history) {
            std::printf("history of user-1: %lld transactions\n", static_cast<long long>(history.size()));
            for (const QVTransaction &t : history)
                std::printf("  %s  %-18s %s\n", qPrintable(t.timestamp()), qPrintable(t.offerName()),
                            qPrintable(t.currencyAdjustment()));
            done();
        }, failed("history", done));
    });
    await([&](auto done) {
        api->createSupportTicket(QStringLiteral("Ada Demo"), QStringLiteral("ada@example.com"), QStringLiteral("1"),
                                 QStringLiteral("My Dragon Realms reward never arrived."), QStringLiteral("Dragon Realms"),
                                 QStringLiteral("11/02/2026"), [done](const QVariant &id) {
                                     std::printf("ticket filed: id %s\n", qPrintable(id.toString()));
                                     done();
                                 }, failed("ticket", done));
    });
    std::fflush(stdout);
    return failures == 0 ? 0 : 1;
}
