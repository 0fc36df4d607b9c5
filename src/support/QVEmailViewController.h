// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVChooseSubjectView.h"
#include "QVOfferTimeCompletedView.h"

#include <QtCore/QDate>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>
#include <memory>

class QPropertyAnimation;
class QVEnterCommentView;
class QVEnterInformationView;
class QVEnterOfferTitleView;
class QVOfferDateCompletedView;
class QVSupportSendButtonView;
class QVUnableToAssist;

class QVEmailViewControllerPrivate;

/// Shown the form's validation messages, one at a time.
class QUORVAMEDIA_EXPORT QVEmailViewControllerDelegate
{
public:
    /// The delegate is not owned by the form.
    virtual ~QVEmailViewControllerDelegate() = default;
    /// Shows the message, such as "Please enter a valid email".
    virtual void invalidInputMessage(const QString &message) = 0;
};

/// The support-ticket form. Stacks the pieces the current step needs, top to bottom, in
/// one content view inside its scroll view, and moves through six states as the user
/// picks a subject (not credited 1, report 4, other 5) and answers the yes/no question
/// (yes 2, no 3); state 0 is the start. Validates and sends the ticket (the send button
/// exists in states 2, 4 and 5), and manages the keyboard insets and the date panel.
class QUORVAMEDIA_EXPORT QVEmailViewController : public QQuickItem,
                                                 public QVChooseSubjectViewDelegate,
                                                 public QVOfferTimeCompletedViewDelegate
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEmailViewControllerBase)
    /// Outlet: the scroll view that holds the form.
    Q_PROPERTY(QQuickItem *scrollView READ scrollView WRITE setScrollView NOTIFY outletsChanged FINAL)
    /// Outlet: the date panel that slides over the form's bottom.
    Q_PROPERTY(QQuickItem *datePickerView READ datePickerView WRITE setDatePickerView NOTIFY outletsChanged FINAL)
    /// Outlet: the date wheels.
    Q_PROPERTY(QQuickItem *uiDatePicker READ uiDatePicker WRITE setUiDatePicker NOTIFY outletsChanged FINAL)
    /// Outlet: the date panel's "Done" button.
    Q_PROPERTY(QQuickItem *dateDoneBtn READ dateDoneBtn WRITE setDateDoneBtn NOTIFY outletsChanged FINAL)
    /// The form's state, 0 to 5, as the class describes them.
    Q_PROPERTY(int activeUISate READ activeUISate NOTIFY activeUISateChanged FINAL)
    /// How much of the form's bottom the on-screen keyboard covers, in points.
    Q_PROPERTY(qreal keyboardInset READ keyboardInset NOTIFY keyboardInsetChanged FINAL)
    /// How much of the form's top the error strip covers, in points.
    Q_PROPERTY(qreal topInset READ topInset NOTIFY topInsetChanged FINAL)

public:
    /// Room kept below the focused field above the keyboard, in points.
    static constexpr qreal kMinimumOverscroll = 10;
    /// An upward drag of more than this, in points, in one step hides the keyboard.
    static constexpr qreal kDismissDragDistance = 10;
    /// How long the date panel fades in or out, in milliseconds.
    static constexpr int kDatePanelFadeMs = 200;

    /// An empty form; the support centre builds it.
    explicit QVEmailViewController(QQuickItem *parent = nullptr);
    /// A ticket under way ends without calling back into the form.
    ~QVEmailViewController() override;
    /// The form's type name, "QVEmailViewController".
    static QString identifier() { return QStringLiteral("QVEmailViewController"); }

    ///@{
    /// The listener shown the validation messages; not owned.
    QVEmailViewControllerDelegate *delegate() const;
    void setDelegate(QVEmailViewControllerDelegate *delegate);
    ///@}

    /// Builds the pieces and enters state 0; call once the delegate is set.
    void viewDidLoad();

    ///@{
    /// See #activeUISate. Setting it lays out the pieces of that state.
    int activeUISate() const;
    void setUIState(int state);
    ///@}
    /// Sizes the content to the stacked pieces.
    void updateContentSize();
    /// The bottom of the lowest piece, in points.
    qreal getMaximumHeight() const;
    /// See #keyboardInset.
    qreal keyboardInset() const;
    /// How much of the form's top is covered (by the container's error strip); the form
    /// keeps what it scrolls to below that.
    qreal topInset() const;
    /// Sets #topInset.
    void setTopInset(qreal inset);
    /// The chosen subject's identifier, "1" to "3", or empty.
    QString selectedSubjectId() const;
    /// The completion date picked, or a null date.
    QDate chosenDate() const;

    ///@{
    /// The form's pieces and outlets; owned by the form.
    QQuickItem *contentView() const;
    /// See #scrollView.
    QQuickItem *scrollView() const;
    /// See #datePickerView.
    QQuickItem *datePickerView() const;
    /// See #uiDatePicker.
    QQuickItem *uiDatePicker() const;
    /// See #dateDoneBtn.
    QQuickItem *dateDoneBtn() const;
    /// The enter info view, set by the interface file.
    QVEnterInformationView *enterInfoView() const;
    /// The choose subject view, set by the interface file.
    QVChooseSubjectView *chooseSubjectView() const;
    /// The offer time completed, set by the interface file.
    QVOfferTimeCompletedView *offerTimeCompleted() const;
    /// The offer date completed view, set by the interface file.
    QVOfferDateCompletedView *offerDateCompletedView() const;
    /// The enter offer title view, set by the interface file.
    QVEnterOfferTitleView *enterOfferTitleView() const;
    /// The enter comment view, set by the interface file.
    QVEnterCommentView *enterCommentView() const;
    /// The send button view, set by the interface file.
    QVSupportSendButtonView *sendButtonView() const;
    /// The unable to assist view, set by the interface file.
    QVUnableToAssist *unableToAssistView() const;
    ///@}

    /// A subject row was tapped: moves to its state, keeping what was typed.
    void onSubjectChange(QQuickItem *button) override;
    /// The yes/no question was answered: moves to state 2 or 3.
    void onChoiceChange(QQuickItem *button) override;

    /// The scroll view reports every change of its offset here.
    Q_INVOKABLE void scrollViewDidScroll();
    /// The keyboard's frame in window coordinates, as it appears; and as it goes.
    void keyboardDidShow(const QRectF &keyboardFrame);
    /// The keyboard is going: the form's bottom is free again.
    void keyboardWillBeHidden();
    /// The date panel's "Done": takes the picked date and hides the panel.
    Q_INVOKABLE void onDateDonePressed();

    /// Checks the form; on the first problem marks its field, tells the delegate and
    /// scrolls to it.
    bool validateFields();
    /// The "Message Sent" alert.
    void showTicketCreatedAlert();
    /// The "No Connection" alert; every field keeps its text.
    void showFailureAlert();
    /// Empties every field and choice after a ticket was stored.
    void clearInputFields();

public slots:
    /// The date button's and the send button's actions.
    void dateInputFieldPressed();
    /// Validates the form and files one ticket per press.
    void sendPressed();

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void activeUISateChanged();
    void keyboardInsetChanged();
    void topInsetChanged();
    ///@}
    ///@}

protected:
    /// Reimplemented from QQuickItem.
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    template <typename Piece>
    Q_DECL_HIDDEN Piece *loadPiece(const char *objectName);
    Q_DECL_HIDDEN void addPiece(QQuickItem *piece);
    Q_DECL_HIDDEN void removePiece(QQuickItem *piece);
    Q_DECL_HIDDEN void restack();
    Q_DECL_HIDDEN void stackInReadingOrder();
    Q_DECL_HIDDEN void fitUnableToAssist();
    Q_DECL_HIDDEN void setKeyboardInset(qreal inset);
    Q_DECL_HIDDEN void hideDatePanelAtOnce();
    Q_DECL_HIDDEN void fadeDatePanel(qreal opacity);
    Q_DECL_HIDDEN void scrollRectToVisible(const QRectF &rect);
    Q_DECL_HIDDEN void keepFocusInView();
    Q_DECL_HIDDEN void endEditing();
    Q_DECL_HIDDEN QString textOf(QQuickItem *input) const;
    Q_DECL_HIDDEN void watchKeyboard();



    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN void setScrollView(QQuickItem *value);
    Q_DECL_HIDDEN void setDatePickerView(QQuickItem *value);
    Q_DECL_HIDDEN void setUiDatePicker(QQuickItem *value);
    Q_DECL_HIDDEN void setDateDoneBtn(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVEmailViewController)
    std::unique_ptr<QVEmailViewControllerPrivate> m_d;
};
