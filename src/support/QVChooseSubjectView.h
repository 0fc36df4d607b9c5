// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// Told when the user picks another subject; button is the row that was tapped.
class QUORVAMEDIA_EXPORT QVChooseSubjectViewDelegate
{
public:
    /// The delegate is not owned by the view.
    virtual ~QVChooseSubjectViewDelegate() = default;
    /// The user picked the subject of this row.
    virtual void onSubjectChange(QQuickItem *button) = 0;
};

/// The ticket's subject: three rows (not credited, report, other), one checkmark at most.
/// A chosen row can be changed but not withdrawn by tapping it again.
class QUORVAMEDIA_EXPORT QVChooseSubjectView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVChooseSubjectViewBase)
    /// Outlet: the not credit button, set by the interface file.
    Q_PROPERTY(QQuickItem *notCreditBtn MEMBER m_notCreditBtn NOTIFY outletsChanged FINAL)
    /// Outlet: the report button, set by the interface file.
    Q_PROPERTY(QQuickItem *reportBtn MEMBER m_reportBtn NOTIFY outletsChanged FINAL)
    /// Outlet: the other button, set by the interface file.
    Q_PROPERTY(QQuickItem *otherBtn MEMBER m_otherBtn NOTIFY outletsChanged FINAL)
    /// Outlet: the not credit checkmark, set by the interface file.
    Q_PROPERTY(QQuickItem *notCreditCheckmark MEMBER m_notCreditCheckmark NOTIFY outletsChanged FINAL)
    /// Outlet: the report checkmark, set by the interface file.
    Q_PROPERTY(QQuickItem *reportCheckmark MEMBER m_reportCheckmark NOTIFY outletsChanged FINAL)
    /// Outlet: the other checkmark, set by the interface file.
    Q_PROPERTY(QQuickItem *otherCheckmark MEMBER m_otherCheckmark NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVChooseSubjectView".
    static QString identifier() { return QStringLiteral("QVChooseSubjectView"); }

    ///@{
    /// The listener told of the picked subject: the form. Not owned.
    QVChooseSubjectViewDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVChooseSubjectViewDelegate *delegate) { m_delegate = delegate; }
    ///@}
    /// See #notCreditBtn.
    QQuickItem *notCreditBtn() const { return m_notCreditBtn; }
    /// See #reportBtn.
    QQuickItem *reportBtn() const { return m_reportBtn; }
    /// See #otherBtn.
    QQuickItem *otherBtn() const { return m_otherBtn; }

    /// The action of every row.
    Q_INVOKABLE void onSelectionChange(QQuickItem *button);
    /// Hides every checkmark; the delegate is not told.
    void clearSelection();

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QVChooseSubjectViewDelegate *m_delegate = nullptr;
    QQuickItem *m_notCreditBtn = nullptr;
    QQuickItem *m_reportBtn = nullptr;
    QQuickItem *m_otherBtn = nullptr;
    QQuickItem *m_notCreditCheckmark = nullptr;
    QQuickItem *m_reportCheckmark = nullptr;
    QQuickItem *m_otherCheckmark = nullptr;
};
