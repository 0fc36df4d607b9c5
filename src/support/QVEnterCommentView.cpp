// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVEnterCommentView.h"

#include <QtCore/QScopedValueRollback>

namespace {
constexpr QLatin1StringView kIcon("comment_field_icon");
constexpr QLatin1StringView kErrorIcon("comment_field_error");
constexpr QChar kLineBreak(u'\n');
} // namespace

bool QVEnterCommentView::allowsChange(quint64 currentLength, quint64 rangeLength, const QString &replacement)
{
    const quint64 length = currentLength - rangeLength + quint64(replacement.size());
    return length <= kMaximumLength || replacement.contains(kLineBreak);
}

QString QVEnterCommentView::remainingText(quint64 length)
{
    return QString::number(kMaximumLength - length);
}

void QVEnterCommentView::setCounterText(const QString &text)
{
    if (m_counterText == text)
        return;
    m_counterText = text;
    emit counterTextChanged();
}

QString QVEnterCommentView::fieldText() const
{
    return m_commentInputField ? m_commentInputField->property("text").toString() : QString();
}

void QVEnterCommentView::componentComplete()
{
    QVFormFieldView::componentComplete();
    m_acceptedText = fieldText();
}

void QVEnterCommentView::setCommentText(const QString &text)
{
    const QScopedValueRollback guard(m_settingText, true);
    m_acceptedText = text;
    if (m_commentInputField)
        m_commentInputField->setProperty("text", text);
}

void QVEnterCommentView::commentTextChanged()
{
    if (m_settingText || !m_commentInputField)
        return;
    const QString text = fieldText();
    if (text == m_acceptedText)
        return;
    // The input reports the result of an edit; what was replaced by what is the part
    // between the common beginning and the common end.
    const QString &before = m_acceptedText;
    qsizetype start = 0;
    while (start < before.size() && start < text.size() && before[start] == text[start])
        ++start;
    qsizetype end = 0;
    while (end < before.size() - start && end < text.size() - start
           && before[before.size() - 1 - end] == text[text.size() - 1 - end])
        ++end;
    const qsizetype replaced = before.size() - start - end;
    const QString replacement = text.mid(start, text.size() - start - end);

    fieldWillChange(m_commentInputField);
    if (!allowsChange(quint64(before.size()), quint64(replaced), replacement)) {
        const QScopedValueRollback guard(m_settingText, true);
        m_commentInputField->setProperty("text", before);
        m_commentInputField->setProperty("cursorPosition", start + replaced);
        return;
    }
    m_acceptedText = text;
    setCounterText(remainingText(quint64(text.size())));
}

bool QVEnterCommentView::applyLook(QQuickItem *field, bool error)
{
    if (!field || field != m_commentInputField)
        return false;
    const QLatin1StringView name = error ? kErrorIcon : kIcon;
    if (m_commentIconName != name) {
        m_commentIconName = name;
        emit commentIconNameChanged();
    }
    return true;
}
