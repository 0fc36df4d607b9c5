// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// The ticket form's second half: validating, sending and clearing.
#include "QVEmailViewController.h"
#include "QVEmailViewControllerPrivate.h"
#include "QVAlertPresenter.h"
#include "QVEnterCommentView.h"
#include "QVEnterInformationView.h"
#include "QVEnterOfferTitleView.h"
#include "QVOfferDateCompletedView.h"
#include "QuorvaRestAPI.h"
#include "TicketFormCheck.h"

using quorva::detail::TicketField;

namespace {
constexpr QLatin1StringView kApiDateFormat("yyyy-MM-dd");
constexpr const char *kSentTitle = QT_TRANSLATE_NOOP("QVEmailViewController", "Message Sent");
constexpr const char *kSentMessage = QT_TRANSLATE_NOOP("QVEmailViewController", "We will review your inquiry and respond shortly.");
constexpr const char *kFailedTitle = QT_TRANSLATE_NOOP("QVEmailViewController", "No Connection");
constexpr const char *kFailedMessage = QT_TRANSLATE_NOOP("QVEmailViewController", "Please check your internet and try again.");
constexpr const char *kAlertAction = QT_TRANSLATE_NOOP("QVEmailViewController", "Ok");
constexpr QLatin1StringView kFullAllowance("200");
constexpr int kStateWithOfferDetails = 2;
} // namespace

bool QVEmailViewController::validateFields()
{
    if (!d_func()->m_contentView)
        return false;
    endEditing();
    const QQuickItem *dateButton = d_func()->m_offerDateCompletedView->dateBtn();
    const quorva::detail::TicketFormProblem problem = quorva::detail::firstProblem({
        textOf(d_func()->m_enterInfoView->nameTextField()),
        textOf(d_func()->m_enterInfoView->emailTextField()),
        textOf(d_func()->m_enterOfferTitleView->offerNameField()),
        dateButton ? dateButton->property("text").toString() : QString(),
        textOf(d_func()->m_enterCommentView->commentInputField()),
        d_func()->m_activeUISate,
    });
    QQuickItem *piece = nullptr;
    QQuickItem *input = nullptr;
    switch (problem.field) {
    case TicketField::None:
        return true;
    case TicketField::Name:
        input = d_func()->m_enterInfoView->nameTextField();
        d_func()->m_enterInfoView->notValid(input);
        piece = d_func()->m_enterInfoView;
        break;
    case TicketField::Email:
        input = d_func()->m_enterInfoView->emailTextField();
        d_func()->m_enterInfoView->notValid(input);
        piece = d_func()->m_enterInfoView;
        break;
    case TicketField::OfferName:
        input = d_func()->m_enterOfferTitleView->offerNameField();
        d_func()->m_enterOfferTitleView->notValid(input);
        piece = d_func()->m_enterOfferTitleView;
        break;
    case TicketField::Date:
        input = d_func()->m_offerDateCompletedView->dateBtn();
        d_func()->m_offerDateCompletedView->notValid();
        piece = d_func()->m_offerDateCompletedView;
        break;
    case TicketField::Comment:
        input = d_func()->m_enterCommentView->commentInputField();
        d_func()->m_enterCommentView->notValid(input);
        piece = d_func()->m_enterCommentView;
        break;
    }
    if (d_func()->m_delegate)
        d_func()->m_delegate->invalidInputMessage(problem.message);
    // The keyboard goes to the field in error, which says what is wrong with it; then the
    // whole piece, its label too, is scrolled into view.
    if (input) {
        input->setProperty("errorText", problem.message);
        input->forceActiveFocus(Qt::OtherFocusReason);
    }
    scrollRectToVisible(QRectF(piece->position(), piece->size()));
    return false;
}

void QVEmailViewController::sendPressed()
{
    // Without a subject there is no send button; a call from code sends nothing either.
    if (!d_func()->m_contentView || d_func()->m_selectedSubjectId.isNull() || !validateFields())
        return;
    const bool withOfferDetails = d_func()->m_activeUISate == kStateWithOfferDetails;
    // The texts go out as typed; trimming only judged them.
    const QString offerName = withOfferDetails ? textOf(d_func()->m_enterOfferTitleView->offerNameField()) : QString();
    const QString completedAt = withOfferDetails ? d_func()->m_chosenDate.toString(kApiDateFormat) : QString();
    QPointer<QVEmailViewController> self(this);
    // No guard against a second press: every press that passes validation files a ticket.
    QuorvaRestAPI::sharedInstance()->createSupportTicket(
        textOf(d_func()->m_enterInfoView->nameTextField()), textOf(d_func()->m_enterInfoView->emailTextField()), d_func()->m_selectedSubjectId,
        textOf(d_func()->m_enterCommentView->commentInputField()), offerName, completedAt,
        [self](const QVariant &) {
            if (self)
                self->showTicketCreatedAlert();
        },
        [self] {
            if (self)
                self->showFailureAlert();
        });
}

void QVEmailViewController::showTicketCreatedAlert()
{
    QVAlertPresenter::present(this, tr(kSentTitle), tr(kSentMessage), tr(kAlertAction));
    clearInputFields();
}

void QVEmailViewController::showFailureAlert()
{
    // Everything typed stays, so the user can send again.
    QVAlertPresenter::present(this, tr(kFailedTitle), tr(kFailedMessage), tr(kAlertAction));
}

void QVEmailViewController::clearInputFields()
{
    if (!d_func()->m_contentView)
        return;
    d_func()->m_enterInfoView->nameTextField()->setProperty("text", QString());
    d_func()->m_enterInfoView->emailTextField()->setProperty("text", QString());
    d_func()->m_chooseSubjectView->clearSelection();
    d_func()->m_offerTimeCompleted->clearSelection();
    d_func()->m_offerDateCompletedView->dateBtn()->setProperty("text", QString(QVOfferDateCompletedView::kPlaceholder));
    d_func()->m_enterOfferTitleView->offerNameField()->setProperty("text", QString());
    d_func()->m_enterCommentView->setCommentText(QString());
    d_func()->m_enterCommentView->setCounterText(kFullAllowance);
}
