#include "QuorvaLog.h"

Q_LOGGING_CATEGORY(lcQuorva, "quorva", QtInfoMsg)
Q_LOGGING_CATEGORY(lcQuorvaDiagnostics, "quorva.diagnostics", QtWarningMsg)
