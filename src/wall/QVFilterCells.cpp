// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFilterCells.h"

void QVFilterUICollectionViewCell::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    if (m_checkmarkImage)
        m_checkmarkImage->setVisible(selected);
    emit selectedChanged();
}

void QVFilterUICollectionViewCell::componentComplete()
{
    QQuickItem::componentComplete();
    if (m_checkmarkImage)
        m_checkmarkImage->setVisible(m_selected);
}
