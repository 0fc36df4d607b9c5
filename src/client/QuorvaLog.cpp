// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QuorvaLog.h"

Q_LOGGING_CATEGORY(lcQuorva, "quorva", QtInfoMsg)
Q_LOGGING_CATEGORY(lcQuorvaDiagnostics, "quorva.diagnostics", QtWarningMsg)
