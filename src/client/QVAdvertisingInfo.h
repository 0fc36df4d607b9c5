// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

/// What the host knows about the device's advertising identifier. The identifier is
/// sent as canonical upper-case 8-4-4-4-12 text.
/// Its fields are fixed for all of 2.x.
struct QVAdvertisingInfo
{
    /// The advertising identifier; empty or not valid sends the all-zero one.
    QString identifier;
    /// Whether the user allows tracking.
    bool trackingEnabled = false;
};
