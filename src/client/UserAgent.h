// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QString>

namespace quorva::detail {

// "<application> Quorva-SDK (iOS/<model>)"; an empty part is written "(null)". The
// second field carries the device model although it follows "iOS/": the service's
// analytics read it that way.
QUORVAMEDIA_EXPORT QString formatUserAgent(const QString &applicationName, const QString &deviceModel);

} // namespace quorva::detail
