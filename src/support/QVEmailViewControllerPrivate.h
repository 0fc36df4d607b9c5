// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVEmailViewController.h"

// The data of QVEmailViewController, behind its private pointer so that its size stays the
// same from release to release.
class QVEmailViewControllerPrivate
{
public:
    QVEmailViewControllerDelegate *m_delegate = nullptr;
    QMetaObject::Connection m_focusInView; // the window's focus changes, to keep the focus in view
    QQuickItem *m_scrollView = nullptr;
    QQuickItem *m_datePickerView = nullptr;
    QQuickItem *m_uiDatePicker = nullptr;
    QQuickItem *m_dateDoneBtn = nullptr;
    QQuickItem *m_contentView = nullptr;
    QVOfferTimeCompletedView *m_offerTimeCompleted = nullptr;
    QVEnterInformationView *m_enterInfoView = nullptr;
    QVChooseSubjectView *m_chooseSubjectView = nullptr;
    QVOfferDateCompletedView *m_offerDateCompletedView = nullptr;
    QVEnterOfferTitleView *m_enterOfferTitleView = nullptr;
    QVEnterCommentView *m_enterCommentView = nullptr;
    QVSupportSendButtonView *m_sendButtonView = nullptr;
    QVUnableToAssist *m_unableToAssistView = nullptr;
    qreal m_sendPieceHeight = 0; // as designed; the notice may make it taller
    qreal m_lastContentOffsetY = 0;
    int m_activeUISate = 0;
    QString m_selectedSubjectId;
    QDate m_chosenDate;
    qreal m_keyboardInset = 0;
    qreal m_topInset = 0;
    QPointer<QPropertyAnimation> m_datePanelFade;
    QPointer<QPropertyAnimation> m_scrollAnimation;
};
