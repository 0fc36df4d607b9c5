#include "QVEmailViewController.h"
#include "QVComponentFactory.h"
#include "QVDevice.h"
#include "QVEnterCommentView.h"
#include "QVEnterInformationView.h"
#include "QVEnterOfferTitleView.h"
#include "QVKeyboard.h"
#include "QVOfferDateCompletedView.h"
#include "QVSupportSendButtonView.h"
#include "QVUnableToAssist.h"

#include <QtCore/QPropertyAnimation>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

#include <algorithm>

namespace {
constexpr QLatin1StringView kDateDisplayFormat("MM/dd/yy");
constexpr int kScrollAnimationMs = 300;

enum State { Start = 0, NotCredited = 1, Completed = 2, NotCompleted = 3, Report = 4, Other = 5 };
} // namespace

QVEmailViewController::QVEmailViewController(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope, true);
}

QVEmailViewController::~QVEmailViewController() = default;

template <typename Piece>
Piece *QVEmailViewController::loadPiece(const char *objectName)
{
    auto *piece = QVComponentFactory::create<Piece>(qmlEngine(this), Piece::identifier(), {}, qmlContext(this));
    if (!piece)
        return nullptr;
    // Owned here for the form's whole life, in or out of the content view, so a piece
    // taken out by one state comes back with what was typed into it.
    piece->setParent(this);
    piece->setObjectName(QLatin1StringView(objectName));
    return piece;
}

void QVEmailViewController::viewDidLoad()
{
    m_enterInfoView = loadPiece<QVEnterInformationView>("enterInfoView");
    m_chooseSubjectView = loadPiece<QVChooseSubjectView>("chooseSubjectView");
    if (m_chooseSubjectView)
        m_chooseSubjectView->setDelegate(this);
    m_offerTimeCompleted = loadPiece<QVOfferTimeCompletedView>("offerTimeCompleted");
    if (m_offerTimeCompleted)
        m_offerTimeCompleted->setDelegate(this);
    m_offerDateCompletedView = loadPiece<QVOfferDateCompletedView>("offerDateCompletedView");
    m_enterOfferTitleView = loadPiece<QVEnterOfferTitleView>("enterOfferTitleView");
    m_enterCommentView = loadPiece<QVEnterCommentView>("enterCommentView");
    m_unableToAssistView = loadPiece<QVUnableToAssist>("unableToAssistView");
    // Its texts are laid out after a width change, and a long language wraps them further.
    if (m_unableToAssistView)
        connect(m_unableToAssistView, &QQuickItem::implicitHeightChanged, this, [this] {
            fitUnableToAssist();
            updateContentSize();
        });
    m_sendButtonView = loadPiece<QVSupportSendButtonView>("sendButtonView");
    const QList<QQuickItem *> pieces{m_enterInfoView, m_chooseSubjectView, m_offerTimeCompleted,
                                     m_offerDateCompletedView, m_enterOfferTitleView, m_enterCommentView,
                                     m_unableToAssistView, m_sendButtonView};
    if (pieces.contains(nullptr) || !m_scrollView)
        return; // the interface files are broken; there is no form to show

    auto *scrollContent = m_scrollView->property("contentItem").value<QQuickItem *>();
    m_contentView = new QQuickItem(scrollContent);
    m_contentView->setObjectName(QStringLiteral("contentView"));
    m_contentView->setSize({m_scrollView->width(), getMaximumHeight()});
    setUIState(Start);

    if (QQuickItem *send = m_sendButtonView->sendBtn())
        connect(send, SIGNAL(clicked()), this, SLOT(sendPressed()));
    if (QQuickItem *dateButton = m_offerDateCompletedView->dateBtn())
        connect(dateButton, SIGNAL(clicked()), this, SLOT(dateInputFieldPressed()));
    watchKeyboard();
}

void QVEmailViewController::watchKeyboard()
{
    QInputMethod *keyboard = QGuiApplication::inputMethod();
    auto changed = [this, keyboard] {
        if (keyboard->isVisible() && !keyboard->keyboardRectangle().isEmpty())
            keyboardDidShow(keyboard->keyboardRectangle());
        else if (!keyboard->isVisible() && !QVDevice::isTablet())
            keyboardWillBeHidden();
    };
    connect(keyboard, &QInputMethod::visibleChanged, this, changed);
    connect(keyboard, &QInputMethod::keyboardRectangleChanged, this, changed);
    // Moving to another field with the keyboard up shows it again for that field, as a
    // phone does, so the field's own rule (the send button for the details) applies.
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, [this, keyboard, changed] {
        if (keyboard->isVisible())
            QMetaObject::invokeMethod(this, changed, Qt::QueuedConnection);
    });
}

qreal QVEmailViewController::getMaximumHeight() const
{
    qreal total = 0;
    for (const QQuickItem *piece : {static_cast<const QQuickItem *>(m_offerTimeCompleted),
                                    static_cast<const QQuickItem *>(m_enterInfoView),
                                    static_cast<const QQuickItem *>(m_chooseSubjectView),
                                    static_cast<const QQuickItem *>(m_offerDateCompletedView),
                                    static_cast<const QQuickItem *>(m_enterOfferTitleView),
                                    static_cast<const QQuickItem *>(m_enterCommentView),
                                    static_cast<const QQuickItem *>(m_sendButtonView),
                                    static_cast<const QQuickItem *>(m_unableToAssistView)}) {
        total += piece ? piece->height() : 0;
    }
    return total;
}

void QVEmailViewController::addPiece(QQuickItem *piece)
{
    if (piece && piece->parentItem() != m_contentView)
        piece->setParentItem(m_contentView);
}

void QVEmailViewController::removePiece(QQuickItem *piece)
{
    if (piece && piece->parentItem() == m_contentView)
        piece->setParentItem(nullptr);
}

void QVEmailViewController::place(QQuickItem *piece, QQuickItem *anchor, qreal height)
{
    if (!piece)
        return;
    const qreal top = anchor ? anchor->y() + anchor->height() : 0;
    piece->setPosition({0, top});
    piece->setWidth(width());
    if (height >= 0)
        piece->setHeight(height);
}

void QVEmailViewController::setUIState(int state)
{
    if (!m_contentView)
        return;
    if (m_activeUISate != state) {
        m_activeUISate = state;
        emit activeUISateChanged();
    }
    switch (state) {
    case Start:
        addPiece(m_enterInfoView);
        addPiece(m_chooseSubjectView);
        addPiece(m_sendButtonView);
        place(m_enterInfoView, nullptr);
        place(m_chooseSubjectView, m_enterInfoView);
        m_sendButtonView->setVisible(false);
        break;
    case NotCredited:
        removePiece(m_enterCommentView);
        removePiece(m_unableToAssistView);
        addPiece(m_offerTimeCompleted);
        place(m_offerTimeCompleted, m_chooseSubjectView);
        m_offerTimeCompleted->clearSelection();
        m_sendButtonView->setVisible(false);
        break;
    case Completed:
        removePiece(m_unableToAssistView);
        addPiece(m_offerDateCompletedView);
        addPiece(m_enterOfferTitleView);
        addPiece(m_enterCommentView);
        place(m_offerDateCompletedView, m_offerTimeCompleted);
        place(m_enterOfferTitleView, m_offerDateCompletedView);
        place(m_enterCommentView, m_enterOfferTitleView);
        place(m_sendButtonView, m_enterCommentView);
        m_sendButtonView->setVisible(true);
        break;
    case NotCompleted:
        removePiece(m_offerDateCompletedView);
        removePiece(m_enterOfferTitleView);
        removePiece(m_enterCommentView);
        addPiece(m_unableToAssistView);
        // The notice takes the send button's place and height.
        place(m_unableToAssistView, m_offerTimeCompleted, m_sendButtonView->height());
        fitUnableToAssist();
        m_sendButtonView->setVisible(false);
        break;
    case Report:
    case Other:
        removePiece(m_offerTimeCompleted);
        removePiece(m_offerDateCompletedView);
        removePiece(m_enterOfferTitleView);
        removePiece(m_unableToAssistView);
        addPiece(m_enterCommentView);
        place(m_enterCommentView, m_chooseSubjectView);
        place(m_sendButtonView, m_enterCommentView);
        m_sendButtonView->setVisible(true);
        break;
    default:
        break;
    }
    stackInReadingOrder();
    updateContentSize();
}

// The notice takes the send button's place and at least its height.
void QVEmailViewController::fitUnableToAssist()
{
    if (m_unableToAssistView && m_unableToAssistView->parentItem() == m_contentView)
        m_unableToAssistView->setHeight(std::max(m_sendButtonView->height(), m_unableToAssistView->implicitHeight()));
}

void QVEmailViewController::stackInReadingOrder()
{
    // Tab goes through the items in their stacking order: make it the order on screen.
    QList<QQuickItem *> pieces = m_contentView->childItems();
    std::stable_sort(pieces.begin(), pieces.end(), [](QQuickItem *a, QQuickItem *b) { return a->y() < b->y(); });
    for (qsizetype i = 1; i < pieces.size(); ++i)
        pieces[i]->stackAfter(pieces[i - 1]);
}

void QVEmailViewController::updateContentSize()
{
    if (!m_contentView || !m_scrollView)
        return;
    qreal stacked = 0;
    for (const QQuickItem *piece : m_contentView->childItems())
        stacked += piece->height(); // the hidden send button counts too
    // The form always scrolls a little, however short it is.
    const qreal contentHeight = qMax(stacked, height() + kMinimumOverscroll);
    m_scrollView->setProperty("contentWidth", width());
    m_scrollView->setProperty("contentHeight", contentHeight);
}

void QVEmailViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (!m_contentView || newGeometry.size() == oldGeometry.size())
        return;
    m_contentView->setWidth(newGeometry.width());
    for (QQuickItem *piece : m_contentView->childItems())
        piece->setWidth(newGeometry.width());
    updateContentSize();
}

void QVEmailViewController::endEditing()
{
    QVKeyboard::endEditing(this);
}

void QVEmailViewController::hideDatePanelAtOnce()
{
    if (m_datePanelFade)
        m_datePanelFade->stop();
    if (m_datePickerView)
        m_datePickerView->setOpacity(0);
}

void QVEmailViewController::fadeDatePanel(qreal opacity)
{
    if (!m_datePickerView)
        return;
    if (m_datePanelFade)
        m_datePanelFade->stop();
    auto *fade = new QPropertyAnimation(m_datePickerView, "opacity", this);
    fade->setDuration(kDatePanelFadeMs);
    fade->setEndValue(opacity);
    m_datePanelFade = fade;
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVEmailViewController::onSubjectChange(QQuickItem *button)
{
    if (button && button == m_chooseSubjectView->notCreditBtn()) {
        setUIState(NotCredited);
        m_selectedSubjectId = QStringLiteral("1");
    } else if (button && button == m_chooseSubjectView->reportBtn()) {
        setUIState(Report);
        m_selectedSubjectId = QStringLiteral("2");
    } else if (button && button == m_chooseSubjectView->otherBtn()) {
        setUIState(Other);
        m_selectedSubjectId = QStringLiteral("3");
    }
    endEditing();
    hideDatePanelAtOnce();
}

void QVEmailViewController::onChoiceChange(QQuickItem *button)
{
    if (button && button == m_offerTimeCompleted->yesButton())
        setUIState(Completed);
    else if (button && button == m_offerTimeCompleted->noButton())
        setUIState(NotCompleted);
    endEditing();
    hideDatePanelAtOnce();
}

void QVEmailViewController::setKeyboardInset(qreal inset)
{
    if (qFuzzyCompare(m_keyboardInset, inset))
        return;
    m_keyboardInset = inset;
    emit keyboardInsetChanged();
}

void QVEmailViewController::setTopInset(qreal inset)
{
    if (qFuzzyCompare(m_topInset, inset))
        return;
    m_topInset = inset;
    emit topInsetChanged();
    if (m_scrollView)
        QMetaObject::invokeMethod(m_scrollView, "returnToBounds");
}

void QVEmailViewController::keyboardDidShow(const QRectF &keyboardFrame)
{
    if (!QVDevice::isTablet()) {
        hideDatePanelAtOnce();
        setKeyboardInset(mapRectFromScene(keyboardFrame).height());
    }
    const bool editingDetails = QVKeyboard::isEditing(m_enterCommentView->commentInputField())
        || QVKeyboard::isEditing(m_enterOfferTitleView->offerNameField());
    if (editingDetails)
        scrollRectToVisible(QRectF(m_sendButtonView->position(), m_sendButtonView->size()));
}

void QVEmailViewController::keyboardWillBeHidden()
{
    setKeyboardInset(0);
}

void QVEmailViewController::scrollViewDidScroll()
{
    if (!m_scrollView)
        return;
    // Only a drag towards the top of more than ten points since the last report.
    const qreal offset = m_scrollView->property("contentY").toReal();
    if (m_lastContentOffsetY > offset + kDismissDragDistance)
        endEditing();
    m_lastContentOffsetY = offset;
}

void QVEmailViewController::scrollRectToVisible(const QRectF &rect)
{
    if (!m_scrollView)
        return;
    // What is not covered: below the top inset, above the keyboard.
    const qreal current = m_scrollView->property("contentY").toReal();
    const qreal visibleHeight = m_scrollView->height() - m_keyboardInset - m_topInset;
    qreal target = current;
    if (rect.bottom() > target + m_topInset + visibleHeight)
        target = rect.bottom() - m_topInset - visibleHeight;
    if (rect.top() < target + m_topInset)
        target = rect.top() - m_topInset;
    const qreal contentHeight = m_scrollView->property("contentHeight").toReal();
    const qreal lowest = -m_topInset;
    target = qBound(lowest, target, qMax(lowest, contentHeight + m_keyboardInset - m_scrollView->height()));
    if (qFuzzyCompare(1 + target, 1 + current))
        return;
    if (m_scrollAnimation)
        m_scrollAnimation->stop();
    auto *scroll = new QPropertyAnimation(m_scrollView, "contentY", this);
    scroll->setDuration(kScrollAnimationMs);
    scroll->setEasingCurve(QEasingCurve::OutCubic);
    scroll->setEndValue(target);
    m_scrollAnimation = scroll;
    scroll->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVEmailViewController::dateInputFieldPressed()
{
    endEditing();
    fadeDatePanel(1);
}

void QVEmailViewController::onDateDonePressed()
{
    fadeDatePanel(0);
    if (m_uiDatePicker)
        m_chosenDate = m_uiDatePicker->property("date").toDate();
    m_offerDateCompletedView->dateValidated();
    if (QQuickItem *button = m_offerDateCompletedView->dateBtn())
        button->setProperty("text", m_chosenDate.toString(kDateDisplayFormat));
}

QString QVEmailViewController::textOf(QQuickItem *input) const
{
    return input ? input->property("text").toString() : QString();
}
