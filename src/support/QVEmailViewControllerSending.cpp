// The ticket form's second half: validating, sending and clearing.
#include "QVEmailViewController.h"
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
    if (!m_contentView)
        return false;
    endEditing();
    const QQuickItem *dateButton = m_offerDateCompletedView->dateBtn();
    const quorva::detail::TicketFormProblem problem = quorva::detail::firstProblem({
        textOf(m_enterInfoView->nameTextField()),
        textOf(m_enterInfoView->emailTextField()),
        textOf(m_enterOfferTitleView->offerNameField()),
        dateButton ? dateButton->property("text").toString() : QString(),
        textOf(m_enterCommentView->commentInputField()),
        m_activeUISate,
    });
    QQuickItem *piece = nullptr;
    switch (problem.field) {
    case TicketField::None:
        return true;
    case TicketField::Name:
        m_enterInfoView->notValid(m_enterInfoView->nameTextField());
        piece = m_enterInfoView;
        break;
    case TicketField::Email:
        m_enterInfoView->notValid(m_enterInfoView->emailTextField());
        piece = m_enterInfoView;
        break;
    case TicketField::OfferName:
        m_enterOfferTitleView->notValid(m_enterOfferTitleView->offerNameField());
        piece = m_enterOfferTitleView;
        break;
    case TicketField::Date:
        m_offerDateCompletedView->notValid();
        piece = m_offerDateCompletedView;
        break;
    case TicketField::Comment:
        m_enterCommentView->notValid(m_enterCommentView->commentInputField());
        piece = m_enterCommentView;
        break;
    }
    if (m_delegate)
        m_delegate->invalidInputMessage(problem.message);
    scrollRectToVisible(QRectF(piece->position(), piece->size()));
    return false;
}

void QVEmailViewController::sendPressed()
{
    // Without a subject there is no send button; a call from code sends nothing either.
    if (!m_contentView || m_selectedSubjectId.isNull() || !validateFields())
        return;
    const bool withOfferDetails = m_activeUISate == kStateWithOfferDetails;
    // The texts go out as typed; trimming only judged them.
    const QString offerName = withOfferDetails ? textOf(m_enterOfferTitleView->offerNameField()) : QString();
    const QString completedAt = withOfferDetails ? m_chosenDate.toString(kApiDateFormat) : QString();
    QPointer<QVEmailViewController> self(this);
    // No guard against a second press: every press that passes validation files a ticket.
    QuorvaRestAPI::sharedInstance()->createSupportTicket(
        textOf(m_enterInfoView->nameTextField()), textOf(m_enterInfoView->emailTextField()), m_selectedSubjectId,
        textOf(m_enterCommentView->commentInputField()), offerName, completedAt,
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
    if (!m_contentView)
        return;
    m_enterInfoView->nameTextField()->setProperty("text", QString());
    m_enterInfoView->emailTextField()->setProperty("text", QString());
    m_chooseSubjectView->clearSelection();
    m_offerTimeCompleted->clearSelection();
    m_offerDateCompletedView->dateBtn()->setProperty("text", QString(QVOfferDateCompletedView::kPlaceholder));
    m_enterOfferTitleView->offerNameField()->setProperty("text", QString());
    m_enterCommentView->setCommentText(QString());
    m_enterCommentView->setCounterText(kFullAllowance);
}
