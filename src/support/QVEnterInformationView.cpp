// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVEnterInformationView.h"
#include "QVColor.h"

namespace {
constexpr QLatin1StringView kNameIcon("name_field_icon");
constexpr QLatin1StringView kNameErrorIcon("name_field_error");
constexpr QLatin1StringView kEmailIcon("email_field_icon");
constexpr QLatin1StringView kEmailErrorIcon("email_field_error");
constexpr QLatin1StringView kErrorTextColor("#A53838");
} // namespace

bool QVEnterInformationView::applyLook(QQuickItem *field, bool error)
{
    if (!field)
        return false;
    if (field == m_nameTextField) {
        m_nameIconName = error ? kNameErrorIcon : kNameIcon;
    } else if (field == m_emailTextField) {
        m_emailIconName = error ? kEmailErrorIcon : kEmailIcon;
        m_emailTextColor = error ? QVColor::colorFromHex(kErrorTextColor) : QColor(Qt::black);
    } else {
        return false;
    }
    emit looksChanged();
    return true;
}
