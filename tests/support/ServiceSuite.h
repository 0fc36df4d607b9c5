// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FakeOfferService.h"
#include "Patience.h"

#include <QuorvaMedia/QVDevice.h>

#include <QtCore/QObject>

// The base of the suites that run against the scripted service. Each test starts with
// the service and the client reset, on a phone, and ends once every request it started
// has ended. A suite that needs more defines its own init() or cleanup() and calls
// startTest() or finishPendingRequests() from it.
class ServiceSuite : public QObject
{
    Q_OBJECT

private slots:
    void init() { startTest(); }
    void cleanup() { finishPendingRequests(); }

protected:
    void startTest()
    {
        m_service.reset();
        QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
    }

    FakeOfferService m_service;
};
