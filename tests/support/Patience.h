// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtTest/QtTest>

// On a loaded machine a real round trip or animation can take longer than QTRY's five
// seconds. A wait only lasts this long when the state it waits for is late, so a
// generous limit costs a passing run nothing.
constexpr int kPatienceMs = 30000;

#undef QTRY_VERIFY
#define QTRY_VERIFY(expr) QTRY_VERIFY_WITH_TIMEOUT(expr, kPatienceMs)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(expr, message) QTRY_VERIFY2_WITH_TIMEOUT(expr, message, kPatienceMs)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, kPatienceMs)

#include <QuorvaMedia/QuorvaRestAPI.h>
#include <QtCore/QThreadPool>

// Lets every request a test started end and run its callback, so that a late answer
// cannot reach the next test (a late category list, an extra page request).
inline void finishPendingRequests()
{
    QVERIFY(QuorvaRestAPI::sharedInstance()->connectionQueue()->waitForDone(kPatienceMs));
    QCoreApplication::processEvents();
}
