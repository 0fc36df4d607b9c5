#pragma once

#include "quorvamedia_global.h"
#include "QVChooseSubjectView.h"
#include "QVOfferTimeCompletedView.h"

#include <QtCore/QDate>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

class QPropertyAnimation;
class QVEnterCommentView;
class QVEnterInformationView;
class QVEnterOfferTitleView;
class QVOfferDateCompletedView;
class QVSupportSendButtonView;
class QVUnableToAssist;

// Shown the form's validation messages, one at a time.
class QUORVAMEDIA_EXPORT QVEmailViewControllerDelegate
{
public:
    virtual ~QVEmailViewControllerDelegate() = default;
    virtual void invalidInputMessage(const QString &message) = 0;
};

// The support-ticket form. Stacks the pieces the current step needs, top to bottom, in
// one content view inside its scroll view, and moves through six states as the user
// picks a subject (not credited 1, report 4, other 5) and answers the yes/no question
// (yes 2, no 3); state 0 is the start. Validates and sends the ticket (the send button
// exists in states 2, 4 and 5), and manages the keyboard insets and the date panel.
class QUORVAMEDIA_EXPORT QVEmailViewController : public QQuickItem,
                                                 public QVChooseSubjectViewDelegate,
                                                 public QVOfferTimeCompletedViewDelegate
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEmailViewControllerBase)
    Q_PROPERTY(QQuickItem *scrollView MEMBER m_scrollView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *datePickerView MEMBER m_datePickerView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *uiDatePicker MEMBER m_uiDatePicker NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *dateDoneBtn MEMBER m_dateDoneBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(int activeUISate READ activeUISate NOTIFY activeUISateChanged FINAL)
    Q_PROPERTY(qreal keyboardInset READ keyboardInset NOTIFY keyboardInsetChanged FINAL)
    Q_PROPERTY(qreal topInset READ topInset NOTIFY topInsetChanged FINAL)

public:
    static constexpr qreal kMinimumOverscroll = 10;
    static constexpr qreal kDismissDragDistance = 10;
    static constexpr int kDatePanelFadeMs = 200;

    explicit QVEmailViewController(QQuickItem *parent = nullptr);
    ~QVEmailViewController() override;
    static QString identifier() { return QStringLiteral("QVEmailViewController"); }

    QVEmailViewControllerDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVEmailViewControllerDelegate *delegate) { m_delegate = delegate; }

    // Builds the pieces and enters state 0; call once the delegate is set.
    void viewDidLoad();

    int activeUISate() const { return m_activeUISate; }
    void setUIState(int state);
    void updateContentSize();
    qreal getMaximumHeight() const;
    qreal keyboardInset() const { return m_keyboardInset; }
    // How much of the form's top is covered (by the container's error strip); the form
    // keeps what it scrolls to below that.
    qreal topInset() const { return m_topInset; }
    void setTopInset(qreal inset);
    QString selectedSubjectId() const { return m_selectedSubjectId; }
    QDate chosenDate() const { return m_chosenDate; }

    QQuickItem *contentView() const { return m_contentView; }
    QQuickItem *scrollView() const { return m_scrollView; }
    QQuickItem *datePickerView() const { return m_datePickerView; }
    QQuickItem *uiDatePicker() const { return m_uiDatePicker; }
    QQuickItem *dateDoneBtn() const { return m_dateDoneBtn; }
    QVEnterInformationView *enterInfoView() const { return m_enterInfoView; }
    QVChooseSubjectView *chooseSubjectView() const { return m_chooseSubjectView; }
    QVOfferTimeCompletedView *offerTimeCompleted() const { return m_offerTimeCompleted; }
    QVOfferDateCompletedView *offerDateCompletedView() const { return m_offerDateCompletedView; }
    QVEnterOfferTitleView *enterOfferTitleView() const { return m_enterOfferTitleView; }
    QVEnterCommentView *enterCommentView() const { return m_enterCommentView; }
    QVSupportSendButtonView *sendButtonView() const { return m_sendButtonView; }
    QVUnableToAssist *unableToAssistView() const { return m_unableToAssistView; }

    void onSubjectChange(QQuickItem *button) override;
    void onChoiceChange(QQuickItem *button) override;

    // The scroll view reports every change of its offset here.
    Q_INVOKABLE void scrollViewDidScroll();
    // The keyboard's frame in window coordinates, as it appears; and as it goes.
    void keyboardDidShow(const QRectF &keyboardFrame);
    void keyboardWillBeHidden();
    Q_INVOKABLE void onDateDonePressed();

    // Checks the form; on the first problem marks its field, tells the delegate and
    // scrolls to it.
    bool validateFields();
    void showTicketCreatedAlert();
    void showFailureAlert();
    void clearInputFields();

public slots:
    // The date button's and the send button's actions.
    void dateInputFieldPressed();
    void sendPressed();

signals:
    void outletsChanged();
    void activeUISateChanged();
    void keyboardInsetChanged();
    void topInsetChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    template <typename Piece>
    Q_DECL_HIDDEN Piece *loadPiece(const char *objectName);
    Q_DECL_HIDDEN void addPiece(QQuickItem *piece);
    Q_DECL_HIDDEN void removePiece(QQuickItem *piece);
    Q_DECL_HIDDEN void place(QQuickItem *piece, QQuickItem *anchor, qreal height = -1);
    Q_DECL_HIDDEN void stackInReadingOrder();
    Q_DECL_HIDDEN void fitUnableToAssist();
    Q_DECL_HIDDEN void setKeyboardInset(qreal inset);
    Q_DECL_HIDDEN void hideDatePanelAtOnce();
    Q_DECL_HIDDEN void fadeDatePanel(qreal opacity);
    Q_DECL_HIDDEN void scrollRectToVisible(const QRectF &rect);
    Q_DECL_HIDDEN void endEditing();
    Q_DECL_HIDDEN QString textOf(QQuickItem *input) const;
    Q_DECL_HIDDEN void watchKeyboard();

    QVEmailViewControllerDelegate *m_delegate = nullptr;
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

    qreal m_lastContentOffsetY = 0;
    int m_activeUISate = 0;
    QString m_selectedSubjectId;
    QDate m_chosenDate;
    qreal m_keyboardInset = 0;
    qreal m_topInset = 0;
    QPointer<QPropertyAnimation> m_datePanelFade;
    QPointer<QPropertyAnimation> m_scrollAnimation;
};
