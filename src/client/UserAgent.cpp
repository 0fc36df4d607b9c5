// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "UserAgent.h"

namespace quorva::detail {

QString formatUserAgent(const QString &applicationName, const QString &deviceModel)
{
    static constexpr QLatin1StringView format("%1 Quorva-SDK (iOS/%2)");
    static constexpr QLatin1StringView absent("(null)");
    return QString(format).arg(applicationName.isEmpty() ? QString(absent) : applicationName,
                               deviceModel.isEmpty() ? QString(absent) : deviceModel);
}

} // namespace quorva::detail
