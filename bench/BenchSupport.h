// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SandboxProcess.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <ctime>
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

inline double median(const std::vector<double> &values)
{
    return percentile(values, 0.5);
}

// Runs the event loop until the condition holds, sleeping while there is nothing to do.
// False when it did not hold within the time.
inline bool waitUntil(const std::function<bool()> &condition, int milliseconds = 60000)
{
    QDeadlineTimer deadline(milliseconds);
    QTimer wake; // a slow tick, only so that the deadline is noticed
    wake.start(50);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Outside exec() deferred deletions would pile up; the real event loop runs them.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

// Asks for a frame and waits until one has been swapped. The swap is reported to the
// GUI thread as an event, which wakes it; nothing polls.
inline bool waitForFrame(QQuickWindow *window)
{
    bool swapped = false;
    QObject context;
    QObject::connect(window, &QQuickWindow::frameSwapped, &context, [&swapped] { swapped = true; },
                     Qt::QueuedConnection);
    window->update();
    return waitUntil([&swapped] { return swapped; }, 10000);
}

// CPU time the calling thread has used, in milliseconds.
inline double threadCpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1000.0 + double(now.tv_nsec) / 1e6;
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

// One line per goal: what was measured, the goal and whether it was met.
inline bool verdict(const char *what, double measured, double goal, const char *unit, const QString &goalText)
{
    const bool met = measured <= goal;
    std::printf("%-46s measured %9.2f %-4s goal <= %9.2f %-4s (%s): %s\n", what, measured, unit, goal, unit,
                qPrintable(goalText), met ? "MET" : "NOT MET");
    std::fflush(stdout);
    return met;
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

} // namespace bench
