#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// Told when the user picks another subject; button is the row that was tapped.
class QUORVAMEDIA_EXPORT QVChooseSubjectViewDelegate
{
public:
    virtual ~QVChooseSubjectViewDelegate() = default;
    virtual void onSubjectChange(QQuickItem *button) = 0;
};

// The ticket's subject: three rows (not credited, report, other), one checkmark at most.
// A chosen row can be changed but not withdrawn by tapping it again.
class QUORVAMEDIA_EXPORT QVChooseSubjectView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVChooseSubjectViewBase)
    Q_PROPERTY(QQuickItem *notCreditBtn MEMBER m_notCreditBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *reportBtn MEMBER m_reportBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *otherBtn MEMBER m_otherBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *notCreditCheckmark MEMBER m_notCreditCheckmark NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *reportCheckmark MEMBER m_reportCheckmark NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *otherCheckmark MEMBER m_otherCheckmark NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVChooseSubjectView"); }

    QVChooseSubjectViewDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVChooseSubjectViewDelegate *delegate) { m_delegate = delegate; }
    QQuickItem *notCreditBtn() const { return m_notCreditBtn; }
    QQuickItem *reportBtn() const { return m_reportBtn; }
    QQuickItem *otherBtn() const { return m_otherBtn; }

    // The action of every row.
    Q_INVOKABLE void onSelectionChange(QQuickItem *button);
    // Hides every checkmark; the delegate is not told.
    void clearSelection();

signals:
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
