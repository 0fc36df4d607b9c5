// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVEmailViewController.h"
#include "FocusChain.h"

#include <QtQuick/QQuickWindow>
#include "QVEmailViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "QVComponentFactory.h"
#include "DeviceIdiom.h"
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

QVEmailViewController::QVEmailViewController(QQuickItem *parent)
    : QQuickItem(parent), m_d(std::make_unique<QVEmailViewControllerPrivate>())
{
    setFlag(ItemIsFocusScope, true);
    // What the keyboard moves to is scrolled into view, as a tap's target already is.
    connect(this, &QQuickItem::windowChanged, this, [this](QQuickWindow *window) {
        disconnect(d_func()->m_focusInView);
        if (window)
            d_func()->m_focusInView = connect(window, &QQuickWindow::activeFocusItemChanged, this,
                                              &QVEmailViewController::keepFocusInView);
    });
}

void QVEmailViewController::keepFocusInView()
{
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    QQuickItem *content = d_func()->m_contentView;
    if (focused && content && content->isAncestorOf(focused))
        scrollRectToVisible(focused->mapRectToItem(content, focused->boundingRect()));
}

QVEmailViewController::~QVEmailViewController()
{
    // The window goes on changing its focus while the items below this one are destroyed;
    // by then this is no longer a form to call.
    disconnect(d_func()->m_focusInView);
    disconnect(this, &QQuickItem::windowChanged, this, nullptr);
}

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
    d_func()->m_enterInfoView = loadPiece<QVEnterInformationView>("enterInfoView");
    d_func()->m_chooseSubjectView = loadPiece<QVChooseSubjectView>("chooseSubjectView");
    if (d_func()->m_chooseSubjectView)
        d_func()->m_chooseSubjectView->setDelegate(this);
    d_func()->m_offerTimeCompleted = loadPiece<QVOfferTimeCompletedView>("offerTimeCompleted");
    if (d_func()->m_offerTimeCompleted)
        d_func()->m_offerTimeCompleted->setDelegate(this);
    d_func()->m_offerDateCompletedView = loadPiece<QVOfferDateCompletedView>("offerDateCompletedView");
    d_func()->m_enterOfferTitleView = loadPiece<QVEnterOfferTitleView>("enterOfferTitleView");
    d_func()->m_enterCommentView = loadPiece<QVEnterCommentView>("enterCommentView");
    d_func()->m_unableToAssistView = loadPiece<QVUnableToAssist>("unableToAssistView");
    // Its texts are laid out after a width change, and a long language wraps them further.
    if (d_func()->m_unableToAssistView)
        connect(d_func()->m_unableToAssistView, &QQuickItem::implicitHeightChanged, this, [this] {
            fitUnableToAssist();
            updateContentSize();
        });
    d_func()->m_sendButtonView = loadPiece<QVSupportSendButtonView>("sendButtonView");
    const QList<QQuickItem *> pieces{d_func()->m_enterInfoView, d_func()->m_chooseSubjectView, d_func()->m_offerTimeCompleted,
                                     d_func()->m_offerDateCompletedView, d_func()->m_enterOfferTitleView, d_func()->m_enterCommentView,
                                     d_func()->m_unableToAssistView, d_func()->m_sendButtonView};
    if (pieces.contains(nullptr) || !d_func()->m_scrollView)
        return; // the interface files are broken; there is no form to show
    d_func()->m_sendPieceHeight = d_func()->m_sendButtonView->height();
    // A piece whose texts grow (a larger text size, a wrapped label) pushes the ones below.
    for (QQuickItem *piece : pieces)
        connect(piece, &QQuickItem::heightChanged, this, &QVEmailViewController::restack);

    auto *scrollContent = d_func()->m_scrollView->property("contentItem").value<QQuickItem *>();
    d_func()->m_contentView = new QQuickItem(scrollContent);
    d_func()->m_contentView->setObjectName(QStringLiteral("contentView"));
    d_func()->m_contentView->setSize({d_func()->m_scrollView->width(), getMaximumHeight()});
    setUIState(Start);

    if (QQuickItem *send = d_func()->m_sendButtonView->sendBtn())
        connect(send, SIGNAL(clicked()), this, SLOT(sendPressed()));
    if (QQuickItem *dateButton = d_func()->m_offerDateCompletedView->dateBtn())
        connect(dateButton, SIGNAL(clicked()), this, SLOT(dateInputFieldPressed()));
    watchKeyboard();
}

void QVEmailViewController::watchKeyboard()
{
    QInputMethod *keyboard = QGuiApplication::inputMethod();
    auto changed = [this, keyboard] {
        if (keyboard->isVisible() && !keyboard->keyboardRectangle().isEmpty())
            keyboardDidShow(keyboard->keyboardRectangle());
        else if (!keyboard->isVisible() && !quorva::detail::isTabletFor(this))
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
    for (const QQuickItem *piece : {static_cast<const QQuickItem *>(d_func()->m_offerTimeCompleted),
                                    static_cast<const QQuickItem *>(d_func()->m_enterInfoView),
                                    static_cast<const QQuickItem *>(d_func()->m_chooseSubjectView),
                                    static_cast<const QQuickItem *>(d_func()->m_offerDateCompletedView),
                                    static_cast<const QQuickItem *>(d_func()->m_enterOfferTitleView),
                                    static_cast<const QQuickItem *>(d_func()->m_enterCommentView),
                                    static_cast<const QQuickItem *>(d_func()->m_sendButtonView),
                                    static_cast<const QQuickItem *>(d_func()->m_unableToAssistView)}) {
        total += piece ? piece->height() : 0;
    }
    return total;
}

void QVEmailViewController::addPiece(QQuickItem *piece)
{
    if (piece && piece->parentItem() != d_func()->m_contentView) {
        piece->setParentItem(d_func()->m_contentView);
        piece->setWidth(width());
    }
}

void QVEmailViewController::removePiece(QQuickItem *piece)
{
    if (piece && piece->parentItem() == d_func()->m_contentView)
        piece->setParentItem(nullptr);
}

void QVEmailViewController::setUIState(int state)
{
    if (!d_func()->m_contentView)
        return;
    if (d_func()->m_activeUISate != state) {
        d_func()->m_activeUISate = state;
        emit activeUISateChanged();
    }
    switch (state) {
    case Start:
        addPiece(d_func()->m_enterInfoView);
        addPiece(d_func()->m_chooseSubjectView);
        addPiece(d_func()->m_sendButtonView);
        d_func()->m_sendButtonView->setVisible(false);
        break;
    case NotCredited:
        removePiece(d_func()->m_enterCommentView);
        removePiece(d_func()->m_unableToAssistView);
        addPiece(d_func()->m_offerTimeCompleted);
        d_func()->m_offerTimeCompleted->clearSelection();
        d_func()->m_sendButtonView->setVisible(false);
        break;
    case Completed:
        removePiece(d_func()->m_unableToAssistView);
        addPiece(d_func()->m_offerDateCompletedView);
        addPiece(d_func()->m_enterOfferTitleView);
        addPiece(d_func()->m_enterCommentView);
        d_func()->m_sendButtonView->setVisible(true);
        break;
    case NotCompleted:
        removePiece(d_func()->m_offerDateCompletedView);
        removePiece(d_func()->m_enterOfferTitleView);
        removePiece(d_func()->m_enterCommentView);
        addPiece(d_func()->m_unableToAssistView);
        // The notice takes the send button's place and height.
        fitUnableToAssist();
        d_func()->m_sendButtonView->setVisible(false);
        break;
    case Report:
    case Other:
        removePiece(d_func()->m_offerTimeCompleted);
        removePiece(d_func()->m_offerDateCompletedView);
        removePiece(d_func()->m_enterOfferTitleView);
        removePiece(d_func()->m_unableToAssistView);
        addPiece(d_func()->m_enterCommentView);
        d_func()->m_sendButtonView->setVisible(true);
        break;
    default:
        break;
    }
    restack();
    stackInReadingOrder();
}

// The notice takes the send button's place at the same height: the send piece grows to what
// the notice's texts need in the current language, so the form ends at the same line either way.
void QVEmailViewController::fitUnableToAssist()
{
    QQuickItem *notice = d_func()->m_unableToAssistView;
    QQuickItem *send = d_func()->m_sendButtonView;
    if (!notice || !send)
        return;
    if (width() <= 0)
        return; // texts wrapped at no width would ask for any height
    notice->setWidth(width());
    const qreal height = std::max(d_func()->m_sendPieceHeight, notice->implicitHeight());
    notice->setHeight(height);
    send->setHeight(height);
}

void QVEmailViewController::restack()
{
    if (!d_func()->m_contentView)
        return;
    // Every state shows its pieces in this order, one under the other.
    qreal top = 0;
    for (QQuickItem *piece : {static_cast<QQuickItem *>(d_func()->m_enterInfoView),
                              static_cast<QQuickItem *>(d_func()->m_chooseSubjectView),
                              static_cast<QQuickItem *>(d_func()->m_offerTimeCompleted),
                              static_cast<QQuickItem *>(d_func()->m_offerDateCompletedView),
                              static_cast<QQuickItem *>(d_func()->m_enterOfferTitleView),
                              static_cast<QQuickItem *>(d_func()->m_enterCommentView),
                              static_cast<QQuickItem *>(d_func()->m_unableToAssistView),
                              static_cast<QQuickItem *>(d_func()->m_sendButtonView)}) {
        if (!piece || piece->parentItem() != d_func()->m_contentView || !piece->isVisible())
            continue;
        piece->setY(top);
        top += piece->height();
    }
    updateContentSize();
}

void QVEmailViewController::stackInReadingOrder()
{
    // Tab goes through the items in their stacking order: make it the order on screen.
    QList<QQuickItem *> pieces = d_func()->m_contentView->childItems();
    std::stable_sort(pieces.begin(), pieces.end(), [](QQuickItem *a, QQuickItem *b) { return a->y() < b->y(); });
    for (qsizetype i = 1; i < pieces.size(); ++i)
        pieces[i]->stackAfter(pieces[i - 1]);
}

void QVEmailViewController::updateContentSize()
{
    if (!d_func()->m_contentView || !d_func()->m_scrollView)
        return;
    qreal stacked = 0;
    for (const QQuickItem *piece : d_func()->m_contentView->childItems())
        stacked += piece->height(); // the hidden send button counts too
    // The form always scrolls a little, however short it is.
    const qreal contentHeight = qMax(stacked, height() + kMinimumOverscroll);
    d_func()->m_scrollView->setProperty("contentWidth", width());
    d_func()->m_scrollView->setProperty("contentHeight", contentHeight);
}

void QVEmailViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (!d_func()->m_contentView || newGeometry.size() == oldGeometry.size())
        return;
    d_func()->m_contentView->setWidth(newGeometry.width());
    for (QQuickItem *piece : d_func()->m_contentView->childItems())
        piece->setWidth(newGeometry.width());
    fitUnableToAssist();
    updateContentSize();
}

void QVEmailViewController::endEditing()
{
    QVKeyboard::endEditing(this);
}

void QVEmailViewController::hideDatePanelAtOnce()
{
    if (d_func()->m_datePanelFade)
        d_func()->m_datePanelFade->stop();
    if (d_func()->m_datePickerView)
        d_func()->m_datePickerView->setOpacity(0);
}

void QVEmailViewController::fadeDatePanel(qreal opacity)
{
    if (!d_func()->m_datePickerView)
        return;
    if (d_func()->m_datePanelFade)
        d_func()->m_datePanelFade->stop();
    auto *fade = new QPropertyAnimation(d_func()->m_datePickerView, "opacity", this);
    fade->setDuration(kDatePanelFadeMs);
    fade->setEndValue(opacity);
    d_func()->m_datePanelFade = fade;
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVEmailViewController::onSubjectChange(QQuickItem *button)
{
    if (button && button == d_func()->m_chooseSubjectView->notCreditBtn()) {
        setUIState(NotCredited);
        d_func()->m_selectedSubjectId = QStringLiteral("1");
    } else if (button && button == d_func()->m_chooseSubjectView->reportBtn()) {
        setUIState(Report);
        d_func()->m_selectedSubjectId = QStringLiteral("2");
    } else if (button && button == d_func()->m_chooseSubjectView->otherBtn()) {
        setUIState(Other);
        d_func()->m_selectedSubjectId = QStringLiteral("3");
    }
    endEditing();
    hideDatePanelAtOnce();
}

void QVEmailViewController::onChoiceChange(QQuickItem *button)
{
    if (button && button == d_func()->m_offerTimeCompleted->yesButton())
        setUIState(Completed);
    else if (button && button == d_func()->m_offerTimeCompleted->noButton())
        setUIState(NotCompleted);
    endEditing();
    hideDatePanelAtOnce();
}

void QVEmailViewController::setKeyboardInset(qreal inset)
{
    if (qFuzzyCompare(d_func()->m_keyboardInset, inset))
        return;
    d_func()->m_keyboardInset = inset;
    emit keyboardInsetChanged();
}

void QVEmailViewController::setTopInset(qreal inset)
{
    if (qFuzzyCompare(d_func()->m_topInset, inset))
        return;
    d_func()->m_topInset = inset;
    emit topInsetChanged();
    if (d_func()->m_scrollView)
        QMetaObject::invokeMethod(d_func()->m_scrollView, "returnToBounds");
}

void QVEmailViewController::keyboardDidShow(const QRectF &keyboardFrame)
{
    if (!quorva::detail::isTabletFor(this)) {
        hideDatePanelAtOnce();
        setKeyboardInset(mapRectFromScene(keyboardFrame).height());
    }
    const bool editingDetails = QVKeyboard::isEditing(d_func()->m_enterCommentView->commentInputField())
        || QVKeyboard::isEditing(d_func()->m_enterOfferTitleView->offerNameField());
    if (editingDetails)
        scrollRectToVisible(QRectF(d_func()->m_sendButtonView->position(), d_func()->m_sendButtonView->size()));
}

void QVEmailViewController::keyboardWillBeHidden()
{
    setKeyboardInset(0);
}

void QVEmailViewController::scrollViewDidScroll()
{
    if (!d_func()->m_scrollView)
        return;
    // Only the user's drag towards the top of more than ten points since the last
    // report: the form's own scrolling (a focused field brought into view) keeps the
    // field's keyboard, however fast it moves between two slow frames.
    const qreal offset = d_func()->m_scrollView->property("contentY").toReal();
    if (d_func()->m_scrollView->property("dragging").toBool() && d_func()->m_lastContentOffsetY > offset + kDismissDragDistance)
        endEditing();
    d_func()->m_lastContentOffsetY = offset;
}

void QVEmailViewController::scrollRectToVisible(const QRectF &rect)
{
    if (!d_func()->m_scrollView)
        return;
    // What is not covered: below the top inset, above the keyboard.
    const qreal current = d_func()->m_scrollView->property("contentY").toReal();
    const qreal visibleHeight = d_func()->m_scrollView->height() - d_func()->m_keyboardInset - d_func()->m_topInset;
    qreal target = current;
    if (rect.bottom() > target + d_func()->m_topInset + visibleHeight)
        target = rect.bottom() - d_func()->m_topInset - visibleHeight;
    if (rect.top() < target + d_func()->m_topInset)
        target = rect.top() - d_func()->m_topInset;
    const qreal contentHeight = d_func()->m_scrollView->property("contentHeight").toReal();
    const qreal lowest = -d_func()->m_topInset;
    target = qBound(lowest, target, qMax(lowest, contentHeight + d_func()->m_keyboardInset - d_func()->m_scrollView->height()));
    if (qFuzzyCompare(1 + target, 1 + current))
        return;
    if (d_func()->m_scrollAnimation)
        d_func()->m_scrollAnimation->stop();
    auto *scroll = new QPropertyAnimation(d_func()->m_scrollView, "contentY", this);
    scroll->setDuration(kScrollAnimationMs);
    scroll->setEasingCurve(QEasingCurve::OutCubic);
    scroll->setEndValue(target);
    d_func()->m_scrollAnimation = scroll;
    scroll->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVEmailViewController::dateInputFieldPressed()
{
    endEditing();
    fadeDatePanel(1);
    // The keyboard goes to the wheels, and back to the button with Done.
    quorva::detail::focusFirstWhenBuilt(d_func()->m_uiDatePicker);
}

void QVEmailViewController::onDateDonePressed()
{
    fadeDatePanel(0);
    if (d_func()->m_uiDatePicker)
        d_func()->m_chosenDate = d_func()->m_uiDatePicker->property("date").toDate();
    d_func()->m_offerDateCompletedView->dateValidated();
    if (QQuickItem *button = d_func()->m_offerDateCompletedView->dateBtn()) {
        button->setProperty("text", d_func()->m_chosenDate.toString(kDateDisplayFormat));
        button->forceActiveFocus(Qt::OtherFocusReason);
    }
}

QString QVEmailViewController::textOf(QQuickItem *input) const
{
    return input ? input->property("text").toString() : QString();
}

QVEmailViewControllerDelegate *QVEmailViewController::delegate() const
{
    return d_func()->m_delegate;
}

void QVEmailViewController::setDelegate(QVEmailViewControllerDelegate *delegate)
{
    d_func()->m_delegate = delegate;
}

int QVEmailViewController::activeUISate() const
{
    return d_func()->m_activeUISate;
}

qreal QVEmailViewController::keyboardInset() const
{
    return d_func()->m_keyboardInset;
}

qreal QVEmailViewController::topInset() const
{
    return d_func()->m_topInset;
}

QString QVEmailViewController::selectedSubjectId() const
{
    return d_func()->m_selectedSubjectId;
}

QDate QVEmailViewController::chosenDate() const
{
    return d_func()->m_chosenDate;
}

QQuickItem *QVEmailViewController::contentView() const
{
    return d_func()->m_contentView;
}

QQuickItem *QVEmailViewController::scrollView() const
{
    return d_func()->m_scrollView;
}

QQuickItem *QVEmailViewController::datePickerView() const
{
    return d_func()->m_datePickerView;
}

QQuickItem *QVEmailViewController::uiDatePicker() const
{
    return d_func()->m_uiDatePicker;
}

QQuickItem *QVEmailViewController::dateDoneBtn() const
{
    return d_func()->m_dateDoneBtn;
}

QVEnterInformationView *QVEmailViewController::enterInfoView() const
{
    return d_func()->m_enterInfoView;
}

QVChooseSubjectView *QVEmailViewController::chooseSubjectView() const
{
    return d_func()->m_chooseSubjectView;
}

QVOfferTimeCompletedView *QVEmailViewController::offerTimeCompleted() const
{
    return d_func()->m_offerTimeCompleted;
}

QVOfferDateCompletedView *QVEmailViewController::offerDateCompletedView() const
{
    return d_func()->m_offerDateCompletedView;
}

QVEnterOfferTitleView *QVEmailViewController::enterOfferTitleView() const
{
    return d_func()->m_enterOfferTitleView;
}

QVEnterCommentView *QVEmailViewController::enterCommentView() const
{
    return d_func()->m_enterCommentView;
}

QVSupportSendButtonView *QVEmailViewController::sendButtonView() const
{
    return d_func()->m_sendButtonView;
}

QVUnableToAssist *QVEmailViewController::unableToAssistView() const
{
    return d_func()->m_unableToAssistView;
}

void QVEmailViewController::setScrollView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_scrollView, value))
        emit outletsChanged();
}

void QVEmailViewController::setDatePickerView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_datePickerView, value))
        emit outletsChanged();
}

void QVEmailViewController::setUiDatePicker(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_uiDatePicker, value))
        emit outletsChanged();
}

void QVEmailViewController::setDateDoneBtn(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_dateDoneBtn, value))
        emit outletsChanged();
}
