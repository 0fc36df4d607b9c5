// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

// Records how and where a request's callbacks ran.
struct CallbackProbe
{
    int successes = 0;
    int failures = 0;
    bool requestReturned = false;
    bool ranBeforeReturn = false;
    bool ranOffGuiThread = false;

    void note()
    {
        ranBeforeReturn |= !requestReturned;
        ranOffGuiThread |= QThread::currentThread() != QCoreApplication::instance()->thread();
    }
    auto failure()
    {
        return [this] { note(); ++failures; };
    }
    bool finished() const { return successes + failures > 0; }
};
