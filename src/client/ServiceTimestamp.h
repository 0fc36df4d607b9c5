// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QString>

namespace quorva::detail {

// Converts the service's "yyyy-MM-ddTHH:mm:ss+hhmm" into the display form
// "MM/dd/yyyy hh:mm:ss" in local time. The hour is the 12-hour hour with no AM/PM
// marker, so 13:05 and 01:05 print alike. Returns a null string when the input does
// not parse. Stateless, so safe on any thread.
QUORVAMEDIA_EXPORT QString displayTimestamp(const QString &serviceTimestamp);

} // namespace quorva::detail
