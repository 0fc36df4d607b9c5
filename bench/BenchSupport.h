#pragma once

#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QThread>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace bench {

inline double percentile(std::vector<double> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const auto index = static_cast<std::size_t>(p * double(values.size() - 1) + 0.5);
    return values[std::min(index, values.size() - 1)];
}

inline bool spinUntil(const std::function<bool()> &condition, int milliseconds = 30000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        // Outside exec() deferred deletions would pile up; the real event loop runs them.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

// Resident memory of this process in KiB.
inline long residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return -1;
}

// Points the shared client at the sandbox's publisher and the given wall.
inline QuorvaRestAPI *useSandbox(const SandboxProcess &sandbox, const QString &wall = QStringLiteral("7"))
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->addCaCertificates(sandbox.caCertificates());
    api->setServiceBaseAddress(sandbox.baseAddress());
    api->setPubId(QStringLiteral("1042"));
    api->setCorvelId(wall);
    api->setSubId1(QStringLiteral("user-1"));
    return api;
}

// One offers request, waited for; its duration in milliseconds.
inline double timedOffersRequest(QuorvaRestAPI *api, quint64 offset = 0)
{
    QElapsedTimer timer;
    timer.start();
    bool done = false;
    api->fetchOffers(offset, {}, {}, false, [&](const QList<QVOffer> &, bool) { done = true; }, [&] { done = true; });
    spinUntil([&] { return done; });
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace bench
