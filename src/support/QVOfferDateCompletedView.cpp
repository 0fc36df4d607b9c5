// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOfferDateCompletedView.h"

namespace {
constexpr QLatin1StringView kNormalIcon("date_field_icon");
constexpr QLatin1StringView kErrorIcon("date_field_error");
} // namespace

void QVOfferDateCompletedView::notValid()
{
    setDateIconName(kErrorIcon);
}

void QVOfferDateCompletedView::dateValidated()
{
    setDateIconName(kNormalIcon);
}

void QVOfferDateCompletedView::setDateIconName(QLatin1StringView name)
{
    if (m_dateIconName == name)
        return;
    m_dateIconName = name;
    emit dateIconNameChanged();
}
