// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVChooseSubjectView.h"
#include "ChooserMarks.h"

void QVChooseSubjectView::onSelectionChange(QQuickItem *button)
{
    // The marks change before the delegate hears of it, so it sees the new choice.
    const quorva::detail::ChooserRow rows[] = {{m_notCreditBtn, m_notCreditCheckmark},
                                               {m_reportBtn, m_reportCheckmark},
                                               {m_otherBtn, m_otherCheckmark}};
    if (quorva::detail::markChosenRow(rows, button) && m_delegate)
        m_delegate->onSubjectChange(button);
}

void QVChooseSubjectView::clearSelection()
{
    for (QQuickItem *mark : {m_notCreditCheckmark, m_reportCheckmark, m_otherCheckmark}) {
        if (mark)
            mark->setVisible(false);
    }
}
