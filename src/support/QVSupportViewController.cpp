#include "QVSupportViewController.h"
#include "QVColor.h"
#include "QVComponentFactory.h"
#include "QVFAQViewController.h"
#include "QVHistoryViewController.h"
#include "QVKeyboard.h"
#include "QVNotificationCenter.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

namespace {
constexpr QLatin1StringView kFormBackground("#F2F2F2");
} // namespace

QVSupportViewController::QVSupportViewController(QQuickItem *parent) : QQuickItem(parent)
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
    if (m_errorLabel)
        child->stackBefore(m_errorLabel);
    child->setPosition({0, childTop()});
    child->setSize({width(), qMax<qreal>(0, height() - childTop())});
}

QVFAQViewController *QVSupportViewController::faqViewController()
{
    if (!m_faqVC && (m_faqVC = createChild<QVFAQViewController>("faqVC"))) {
        layoutChild(m_faqVC);
        m_faqVC->viewDidLoad();
    }
    return m_faqVC;
}

QVHistoryViewController *QVSupportViewController::historyViewController()
{
    if (!m_historyVC && (m_historyVC = createChild<QVHistoryViewController>("historyVC"))) {
        layoutChild(m_historyVC);
        m_historyVC->viewDidLoad(); // sends the history request
    }
    return m_historyVC;
}

QVEmailViewController *QVSupportViewController::emailViewController()
{
    if (!m_emailVC && (m_emailVC = createChild<QVEmailViewController>("emailVC"))) {
        m_emailVC->setDelegate(this);
        layoutChild(m_emailVC);
        m_emailVC->viewDidLoad();
    }
    return m_emailVC;
}

void QVSupportViewController::setBackgroundColor(const QColor &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
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
    if (index < 0 || index == m_shownSegment)
        return;
    m_shownSegment = index;
    onViewTypeChange(index);
}

void QVSupportViewController::invalidInputMessage(const QString &message)
{
    if (!m_errorLabel)
        return;
    m_errorLabel->setProperty("text", message);
    setErrorVisible(true);
}

void QVSupportViewController::hideErrorMessage(QObject *)
{
    setErrorVisible(false);
}

void QVSupportViewController::setErrorVisible(bool visible)
{
    if (!m_errorLabel)
        return;
    m_errorLabel->setVisible(visible);
    // The form moves what it shows out from under the strip.
    if (m_emailVC)
        m_emailVC->setTopInset(visible ? m_errorLabel->height() : 0);
}

void QVSupportViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    for (QQuickItem *child : {static_cast<QQuickItem *>(m_faqVC), static_cast<QQuickItem *>(m_historyVC),
                              static_cast<QQuickItem *>(m_emailVC)}) {
        if (child)
            child->setSize({newGeometry.width(), qMax<qreal>(0, newGeometry.height() - childTop())});
    }
}
