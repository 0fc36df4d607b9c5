// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVEnterOfferTitleView.h"

namespace {
constexpr QLatin1StringView kIcon("title_field_icon");
constexpr QLatin1StringView kErrorIcon("title_field_error");
} // namespace

bool QVEnterOfferTitleView::applyLook(QQuickItem *field, bool error)
{
    if (!field || field != m_offerNameField)
        return false;
    const QLatin1StringView name = error ? kErrorIcon : kIcon;
    if (m_nameIconName != name) {
        m_nameIconName = name;
        emit nameIconNameChanged();
    }
    return true;
}
