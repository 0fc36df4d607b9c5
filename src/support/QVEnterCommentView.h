// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVFormFieldView.h"

/// The free-text message: at most 200 characters (UTF-16 units), except that an edit
/// whose new text contains a line break is always taken. The counter shows 200 minus the
/// length as an unsigned 64-bit number, so past 200 it wraps instead of going negative.
class QUORVAMEDIA_EXPORT QVEnterCommentView : public QVFormFieldView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEnterCommentViewBase)
    /// Outlet: the comment input field, set by the interface file.
    Q_PROPERTY(QQuickItem *commentInputField MEMBER m_commentInputField NOTIFY outletsChanged FINAL)
    /// Outlet: the char count, set by the interface file.
    Q_PROPERTY(QQuickItem *charCount MEMBER m_charCount NOTIFY outletsChanged FINAL)
    /// Outlet: the comment icon, set by the interface file.
    Q_PROPERTY(QQuickItem *commentIcon MEMBER m_commentIcon NOTIFY outletsChanged FINAL)
    /// The field icon's name: "comment_field_icon", or "comment_field_error" after a failed check.
    Q_PROPERTY(QString commentIconName READ commentIconName NOTIFY commentIconNameChanged FINAL)
    /// What the counter shows: the characters left.
    Q_PROPERTY(QString counterText READ counterText NOTIFY counterTextChanged FINAL)

public:
    /// The most characters a message takes, line breaks aside.
    static constexpr quint64 kMaximumLength = 200;

    using QVFormFieldView::QVFormFieldView;
    /// The type name, "QVEnterCommentView".
    static QString identifier() { return QStringLiteral("QVEnterCommentView"); }

    /// See #commentInputField.
    QQuickItem *commentInputField() const { return m_commentInputField; }
    /// See #commentIconName.
    QString commentIconName() const { return m_commentIconName; }
    /// See #counterText.
    QString counterText() const { return m_counterText; }
    /// Sets #counterText.
    void setCounterText(const QString &text);

    /// Whether replacing rangeLength units of a text of currentLength with replacement
    /// may happen.
    static bool allowsChange(quint64 currentLength, quint64 rangeLength, const QString &replacement);
    /// What the counter shows for a text of that length.
    static QString remainingText(quint64 length);

    /// The text input reports every change here; a change past the limit is undone.
    Q_INVOKABLE void commentTextChanged();
    /// Sets the text from code: not an edit, and the counter is left alone.
    void setCommentText(const QString &text);

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void commentIconNameChanged();
    void counterTextChanged();
    ///@}

protected:
    /// Gives the message field its error or normal look.
    bool applyLook(QQuickItem *field, bool error) override;
    /// Reimplemented from QQuickItem.
    void componentComplete() override;

private:
    Q_DECL_HIDDEN QString fieldText() const;

    QQuickItem *m_commentInputField = nullptr;
    QQuickItem *m_charCount = nullptr;
    QQuickItem *m_commentIcon = nullptr;
    QString m_commentIconName = QStringLiteral("comment_field_icon");
    QString m_counterText = QString::number(kMaximumLength);
    QString m_acceptedText;     // the text as of the last change that was taken
    bool m_settingText = false;
};
