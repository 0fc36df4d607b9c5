// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOfferTimeCompletedView.h"
#include "ChooserMarks.h"

void QVOfferTimeCompletedView::onSelectionChange(QQuickItem *button)
{
    const quorva::detail::ChooserRow rows[] = {{m_yesButton, m_yesCheckmark}, {m_noButton, m_noCheckmark}};
    if (quorva::detail::markChosenRow(rows, button) && m_delegate)
        m_delegate->onChoiceChange(button);
}

void QVOfferTimeCompletedView::clearSelection()
{
    for (QQuickItem *mark : {m_yesCheckmark, m_noCheckmark}) {
        if (mark)
            mark->setVisible(false);
    }
}
