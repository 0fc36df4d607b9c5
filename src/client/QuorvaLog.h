// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QLoggingCategory>

// The fixed log lines of the library go to "quorva" at info level;
// developer diagnostics go to "quorva.diagnostics" at warning level.
QUORVAMEDIA_EXPORT Q_DECLARE_LOGGING_CATEGORY(lcQuorva)
QUORVAMEDIA_EXPORT Q_DECLARE_LOGGING_CATEGORY(lcQuorvaDiagnostics)
