// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVSupportViewController.h"
#include "QVSupportViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "QVColor.h"
#include "QVComponentFactory.h"
#include "QVFAQViewController.h"
#include "QVHistoryViewController.h"
#include "QVKeyboard.h"
#include "QVNotificationCenter.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

namespace {
constexpr QLatin1StringView kFormBackground("#F2F2F2");
} // namespace

QVSupportViewController::QVSupportViewController(QQuickItem *parent)
    : QQuickItem(parent), m_d(std::make_unique<QVSupportViewControllerPrivate>())
{
    setFlag(ItemIsFocusScope, true);
}

QVSupportViewController::~QVSupportViewController() = default;

void QVSupportViewController::componentComplete()
{
    QQuickItem::componentComplete();
    viewDidLoad();
}

void QVSupportViewController::viewDidLoad()
{
    faqViewController(); // the FAQ is the first tab; the others wait for a tab change
    setErrorVisible(false);
    connect(QVNotificationCenter::defaultCenter(), &QVNotificationCenter::hideErrorMessage, this,
            &QVSupportViewController::hideErrorMessage);
}

template <typename Child>
Child *QVSupportViewController::createChild(const char *objectName)
{
    auto *child = QVComponentFactory::create<Child>(qmlEngine(this), Child::identifier(), {}, qmlContext(this));
    if (!child)
        return nullptr;
    child->setParent(this);
    child->setObjectName(QLatin1StringView(objectName));
    return child;
}

void QVSupportViewController::layoutChild(QQuickItem *child)
{
    if (!child)
        return;
    child->setParentItem(this);
    // Below the error strip in stacking order, so the strip shows over the tab.
    if (d_func()->m_errorLabel)
        child->stackBefore(d_func()->m_errorLabel);
    child->setPosition({0, childTop()});
    child->setSize({width(), qMax<qreal>(0, height() - childTop())});
}

QVFAQViewController *QVSupportViewController::faqViewController()
{
    if (!d_func()->m_faqVC && (d_func()->m_faqVC = createChild<QVFAQViewController>("faqVC"))) {
        layoutChild(d_func()->m_faqVC);
        d_func()->m_faqVC->viewDidLoad();
    }
    return d_func()->m_faqVC;
}

QVHistoryViewController *QVSupportViewController::historyViewController()
{
    if (!d_func()->m_historyVC && (d_func()->m_historyVC = createChild<QVHistoryViewController>("historyVC"))) {
        layoutChild(d_func()->m_historyVC);
        d_func()->m_historyVC->viewDidLoad(); // sends the history request
    }
    return d_func()->m_historyVC;
}

QVEmailViewController *QVSupportViewController::emailViewController()
{
    if (!d_func()->m_emailVC && (d_func()->m_emailVC = createChild<QVEmailViewController>("emailVC"))) {
        d_func()->m_emailVC->setDelegate(this);
        layoutChild(d_func()->m_emailVC);
        d_func()->m_emailVC->viewDidLoad();
    }
    return d_func()->m_emailVC;
}

void QVSupportViewController::setBackgroundColor(const QColor &color)
{
    if (d_func()->m_backgroundColor == color)
        return;
    d_func()->m_backgroundColor = color;
    emit backgroundColorChanged();
}

void QVSupportViewController::onViewTypeChange(int index)
{
    setBackgroundColor(Qt::white);
    setErrorVisible(false);
    if (index < FaqTab || index > FormTab)
        return;
    // Every tab change goes through all three getters, so the first builds them all.
    auto show = [](QQuickItem *child, bool visible) {
        if (child)
            child->setVisible(visible);
    };
    show(faqViewController(), index == FaqTab);
    show(historyViewController(), index == HistoryTab);
    show(emailViewController(), index == FormTab);
    if (index == FormTab)
        setBackgroundColor(QVColor::colorFromHex(kFormBackground));
    else
        QVKeyboard::endEditing(this); // the form keeps its keyboard; the lists dismiss it
}

void QVSupportViewController::segmentChanged(int index)
{
    if (index < 0 || index == d_func()->m_shownSegment)
        return;
    d_func()->m_shownSegment = index;
    onViewTypeChange(index);
    // A keyboard left in the page just hidden goes to the tab that is shown now.
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    if (focused && isAncestorOf(focused) && !focused->isVisible() && d_func()->m_segmentedControl) {
        if (auto *tab = d_func()->m_segmentedControl->property("currentItem").value<QQuickItem *>())
            tab->forceActiveFocus(Qt::OtherFocusReason);
    }
}

void QVSupportViewController::invalidInputMessage(const QString &message)
{
    if (!d_func()->m_errorLabel)
        return;
    d_func()->m_errorLabel->setProperty("text", message);
    setErrorVisible(true);
}

void QVSupportViewController::hideErrorMessage(QObject *)
{
    setErrorVisible(false);
}

void QVSupportViewController::setErrorVisible(bool visible)
{
    if (!d_func()->m_errorLabel)
        return;
    d_func()->m_errorLabel->setVisible(visible);
    // The form moves what it shows out from under the strip.
    if (d_func()->m_emailVC)
        d_func()->m_emailVC->setTopInset(visible ? d_func()->m_errorLabel->height() : 0);
}

void QVSupportViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    for (QQuickItem *child : {static_cast<QQuickItem *>(d_func()->m_faqVC), static_cast<QQuickItem *>(d_func()->m_historyVC),
                              static_cast<QQuickItem *>(d_func()->m_emailVC)}) {
        if (child)
            child->setSize({newGeometry.width(), qMax<qreal>(0, newGeometry.height() - childTop())});
    }
}

QColor QVSupportViewController::backgroundColor() const
{
    return d_func()->m_backgroundColor;
}

bool QVSupportViewController::showsFormBackground() const
{
    return d_func()->m_backgroundColor != QColor(Qt::white);
}

QQuickItem *QVSupportViewController::errorLabel() const
{
    return d_func()->m_errorLabel;
}

QQuickItem *QVSupportViewController::segmentedControl() const
{
    return d_func()->m_segmentedControl;
}

void QVSupportViewController::setSegmentedControl(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_segmentedControl, value))
        emit outletsChanged();
}

void QVSupportViewController::setErrorLabel(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_errorLabel, value))
        emit outletsChanged();
}
