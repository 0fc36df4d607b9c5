// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// The wall's two overlays, the filter panel and the support centre: on a phone they
// slide over the list under the header; on a tablet they are popovers under their button.
#include "QVOffersViewController.h"
#include "QVOffersViewControllerPrivate.h"
#include "QVComponentFactory.h"
#include "DeviceIdiom.h"
#include "QVOffersListModel.h"
#include "QVSpringCurve.h"
#include "QVSupportViewController.h"

#include <QtCore/QPropertyAnimation>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

namespace {
// ListView.Beginning: the row is put at the top of the view.
constexpr int kListViewBeginning = 0;
constexpr const char *kFiltersTitle = QT_TRANSLATE_NOOP("QVOffersViewController", "Sort/Filter Offers");
constexpr const char *kSupportTitle = QT_TRANSLATE_NOOP("QVOffersViewController", "Corvel Support");
constexpr QLatin1StringView kBlurViewType("QVBlurView");
constexpr QLatin1StringView kFiltersType("QVFiltersViewController");
constexpr QLatin1StringView kSupportType("QVSupportViewController");
constexpr qreal kPopoverMargin = 8;
constexpr int kCloseOnEscape = 0x10;             // Popup.CloseOnEscape
constexpr int kPlatformClosePolicy = 0x1 | 0x10; // Popup.CloseOnEscape | Popup.CloseOnPressOutside

QQuickItem *popoverHost(QObject *popover)
{
    return popover ? popover->property("host").value<QQuickItem *>() : nullptr;
}
} // namespace

qreal QVOffersViewController::listHeight() const
{
    return d_func()->m_collectionView ? d_func()->m_collectionView->height() : height();
}

qreal QVOffersViewController::listWidth() const
{
    return d_func()->m_collectionView ? d_func()->m_collectionView->width() : width();
}

void QVOffersViewController::headerTapped()
{
    if (d_func()->m_isFiltersViewOpen)
        closeFiltersView();
    if (d_func()->m_isSupportViewOpen)
        closeSupportView();
}

void QVOffersViewController::onFilterPressed()
{
    if (d_func()->m_isSupportViewOpen) {
        closeSupportView();
        return;
    }
    if (!d_func()->m_isFiltersViewOpen) {
        auto *panel = QVComponentFactory::create<QVFiltersViewController>(qmlEngine(this), kFiltersType, {},
                                                                            overlayContext());
        if (!panel)
            return;
        // Owned by the wall: a panel still sliding out when the wall goes goes with it.
        panel->setParent(this);
        panel->setDelegate(this);
        panel->setCategoryParam(d_func()->m_categoryParam);
        panel->setSortParam(d_func()->m_sortParam);
        // On a phone the panel's rows begin below the wall's header.
        panel->setTopMargin(headerHeight());
        panel->viewDidLoad();
        d_func()->m_filterVC = panel;
    }
    if (quorva::detail::isTabletFor(this)) {
        presentInPopover(popover(d_func()->m_filterPopover, "QVPopover", "filterPopover"), d_func()->m_filterBtn, d_func()->m_filterVC);
        return;
    }
    if (d_func()->m_isFiltersViewOpen) {
        closeFiltersView();
        return;
    }

    QVFiltersViewController *panel = d_func()->m_filterVC;
    overlayWillOpen(d_func()->m_filterBtn);
    attachPhoneOverlay(panel, tr(kFiltersTitle));
    panel->setClip(true);
    d_func()->m_blurView = QVComponentFactory::create<QQuickItem>(
        qmlEngine(this), kBlurViewType, {{QStringLiteral("sourceItem"), QVariant::fromValue(d_func()->m_collectionView)}},
        overlayContext());
    if (d_func()->m_blurView) {
        d_func()->m_blurView->setParent(panel);
        d_func()->m_blurView->setParentItem(panel);
        d_func()->m_blurView->setZ(-1);
        connect(panel, &QQuickItem::yChanged, this, &QVOffersViewController::layoutFilterPanel);
    }
    panel->setY(-listHeight());
    layoutFilterPanel();
    slide(panel, "y", 0, Slide::OpenFilters, false);
    setPhoneOverlayOpen(d_func()->m_isFiltersViewOpen, true);
    overlayDidOpen(panel);
}

void QVOffersViewController::attachPhoneOverlay(QQuickItem *panel, const QString &title)
{
    d_func()->m_lastHeaderTitle = headerText();
    setHeaderText(title);
    panel->setParentItem(this);
    panel->setZ(1);
    if (d_func()->m_headerView)
        d_func()->m_headerView->setZ(2); // the header stays above the panel
}

void QVOffersViewController::setPhoneOverlayOpen(bool &flag, bool open)
{
    // The close button is hidden for exactly as long as a phone overlay is open.
    if (d_func()->m_closeBtn)
        d_func()->m_closeBtn->setVisible(!open);
    flag = open;
    if (!open)
        setHeaderText(d_func()->m_lastHeaderTitle);
    emit overlaysChanged();
}

void QVOffersViewController::layoutFilterPanel()
{
    if (!d_func()->m_filterVC || d_func()->m_filterVC->parentItem() != this)
        return;
    d_func()->m_filterVC->setX(0);
    d_func()->m_filterVC->setSize(size());
    // The blur stays over the list while the panel moves, so the panel shows the
    // blurred content beneath it.
    if (d_func()->m_blurView && d_func()->m_blurView->parentItem() == d_func()->m_filterVC && d_func()->m_collectionView) {
        d_func()->m_blurView->setPosition(d_func()->m_collectionView->position() - d_func()->m_filterVC->position());
        d_func()->m_blurView->setSize(d_func()->m_collectionView->size());
    }
}

void QVOffersViewController::layoutSupportPanel()
{
    if (!d_func()->m_supportVC || d_func()->m_supportVC->parentItem() != this)
        return;
    d_func()->m_supportVC->setY(supportTop());
    d_func()->m_supportVC->setSize({width(), qMax<qreal>(0, height() - supportTop())});
}

void QVOffersViewController::slide(QQuickItem *panel, const char *property, qreal to, Slide kind, bool detachWhenDone)
{
    const auto motion = kind == Slide::OpenFilters ? QVSpringCurve::Motion::FilterPanelOpen
                                                   : QVSpringCurve::Motion::PanelSlide;
    // Only a motion of this same panel is replaced; an earlier panel that is still
    // sliding out finishes and detaches itself.
    QPointer<QPropertyAnimation> &running = panel == d_func()->m_supportVC ? d_func()->m_supportAnimation : d_func()->m_filterAnimation;
    if (running && running->targetObject() == panel)
        running->stop();
    auto *animation = new QPropertyAnimation(panel, property, panel);
    animation->setDuration(int(QVSpringCurve::parameters(motion).durationSeconds * 1000));
    animation->setEasingCurve(QVSpringCurve::curve(motion));
    animation->setStartValue(panel->property(property));
    animation->setEndValue(to);
    if (detachWhenDone) {
        // Detach the panel that slid out, not whichever panel is current by then.
        QPointer<QQuickItem> slidOut = panel;
        connect(animation, &QPropertyAnimation::finished, this, [slidOut] {
            if (slidOut)
                slidOut->deleteLater();
        });
    }
    running = animation;
    trackSlide(animation);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVOffersViewController::trackSlide(QAbstractAnimation *animation)
{
    if (d_func()->m_runningSlides++ == 0)
        emit overlayAnimatingChanged();
    // Stopped or replaced, an animation is destroyed once; that ends its slide.
    connect(animation, &QObject::destroyed, this, [this] {
        if (--d_func()->m_runningSlides == 0)
            emit overlayAnimatingChanged();
    });
}

void QVOffersViewController::closeFiltersView()
{
    const bool wasOpen = d_func()->m_isFiltersViewOpen;
    if (d_func()->m_filterVC && d_func()->m_filterVC->parentItem() == this)
        slide(d_func()->m_filterVC, "y", -listHeight(), Slide::Other, true);
    setPhoneOverlayOpen(d_func()->m_isFiltersViewOpen, false);
    if (wasOpen)
        overlayDidClose();
}

void QVOffersViewController::onSupportPressed()
{
    if (d_func()->m_isFiltersViewOpen) {
        closeFiltersView();
        return;
    }
    if (!d_func()->m_isSupportViewOpen) {
        auto *support = QVComponentFactory::create<QVSupportViewController>(qmlEngine(this), kSupportType, {},
                                                                            overlayContext());
        if (!support)
            return;
        support->setParent(this);
        support->setObjectName(QStringLiteral("supportVC"));
        d_func()->m_supportVC = support;
    }
    if (quorva::detail::isTabletFor(this)) {
        presentInPopover(popover(d_func()->m_supportPopover, "QVSupportPopover", "supportPopover"), d_func()->m_supportBtn, d_func()->m_supportVC);
        return;
    }
    if (d_func()->m_isSupportViewOpen) {
        closeSupportView();
        return;
    }

    QVSupportViewController *support = d_func()->m_supportVC;
    overlayWillOpen(d_func()->m_supportBtn);
    attachPhoneOverlay(support, tr(kSupportTitle));
    // In from the right, under the header.
    // It comes in from the reading side's far edge: the right, or the left in a
    // right-to-left language.
    support->setX(d_func()->m_rightToLeft ? -listWidth() : listWidth());
    layoutSupportPanel();
    slide(support, "x", 0, Slide::Other, false);
    setPhoneOverlayOpen(d_func()->m_isSupportViewOpen, true);
    overlayDidOpen(support);
}

void QVOffersViewController::closeSupportView()
{
    const bool wasOpen = d_func()->m_isSupportViewOpen;
    if (d_func()->m_supportVC && d_func()->m_supportVC->parentItem() == this)
        slide(d_func()->m_supportVC, "x", d_func()->m_rightToLeft ? -listWidth() : listWidth(), Slide::Other, true);
    setPhoneOverlayOpen(d_func()->m_isSupportViewOpen, false);
    if (wasOpen)
        overlayDidClose();
}

QObject *QVOffersViewController::popover(QObject *&popover, const char *typeName, const char *objectName)
{
    // Built on first use: a phone never needs one, and the wall starts faster without.
    if (popover)
        return popover;
    popover = QVComponentFactory::create(qmlEngine(this), QLatin1StringView(typeName),
                                         {{QStringLiteral("parent"), QVariant::fromValue(static_cast<QQuickItem *>(this))}},
                                         overlayContext());
    if (!popover)
        return nullptr;
    popover->setParent(this);
    popover->setObjectName(QLatin1StringView(objectName));
    connect(popover, SIGNAL(opened()), this, SLOT(popoverOpened()));
    connect(popover, SIGNAL(closed()), this, SLOT(popoverClosed()));
    if (popover->metaObject()->indexOfSignal("closeRequested()") >= 0)
        connect(popover, SIGNAL(closeRequested()), this, SLOT(popoverCloseRequested()));
    emit outletsChanged();
    return popover;
}

void QVOffersViewController::popoverOpened()
{
    popoverDidPresent(sender());
}

void QVOffersViewController::popoverClosed()
{
    popoverDidDismiss(sender());
}

void QVOffersViewController::popoverCloseRequested()
{
    dismissPopover(sender());
}

void QVOffersViewController::presentInPopover(QObject *popover, QQuickItem *button, QQuickItem *panel)
{
    QQuickItem *host = popoverHost(popover);
    if (!host || !panel)
        return;
    // Anchored under the pressed button with its arrow pointing up at it.
    const QRectF anchor = button ? button->mapRectToItem(this, button->boundingRect()) : QRectF();
    const qreal popoverX = qBound(kPopoverMargin, anchor.center().x() - popoverWidth() / 2,
                                  qMax(kPopoverMargin, width() - popoverWidth() - kPopoverMargin));
    popover->setProperty("x", popoverX);
    popover->setProperty("y", anchor.bottom());
    popover->setProperty("width", popoverWidth());
    popover->setProperty("height", height() * popoverHeightRatio());
    popover->setProperty("arrowX", anchor.center().x() - popoverX);
    popover->setProperty("closePolicy", kPlatformClosePolicy);

    panel->setParentItem(host);
    panel->setPosition({0, 0});
    panel->setSize(host->size());
    connect(host, &QQuickItem::widthChanged, panel, [panel, host] { panel->setWidth(host->width()); });
    connect(host, &QQuickItem::heightChanged, panel, [panel, host] { panel->setHeight(host->height()); });
    overlayWillOpen(button);
    QMetaObject::invokeMethod(popover, "open");
}

void QVOffersViewController::popoverDidPresent(QObject *popover)
{
    // Once presented, a tap outside no longer closes it; Escape still does.
    if (!popover)
        return;
    popover->setProperty("closePolicy", kCloseOnEscape);
    overlayDidOpen(popover->property("contentItem").value<QQuickItem *>());
}

void QVOffersViewController::popoverDidDismiss(QObject *popover)
{
    if (!popover)
        return;
    popover->setProperty("closePolicy", kPlatformClosePolicy);
    overlayDidClose();
    // The panel in the popover goes with it; the next press builds a new one.
    if (QQuickItem *host = popoverHost(popover)) {
        for (QQuickItem *panel : host->childItems()) {
            if (panel == d_func()->m_filterVC || panel == d_func()->m_supportVC) {
                panel->setParentItem(nullptr);
                panel->deleteLater();
            }
        }
    }
}

void QVOffersViewController::dismissPopover(QObject *popover)
{
    if (!popover)
        return;
    popover->setProperty("closePolicy", kPlatformClosePolicy);
    QMetaObject::invokeMethod(popover, "close");
}

void QVOffersViewController::closeSupportPopover()
{
    dismissPopover(d_func()->m_supportPopover);
}

void QVOffersViewController::onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort)
{
    d_func()->m_categoryParam = category;
    d_func()->m_sortParam = sort;
    d_func()->m_offers->clear();
    updateLoadFailed();
    reloadData();
    loadMoreOffers();
    if (d_func()->m_closeBtn)
        d_func()->m_closeBtn->setVisible(true);
    closeFiltersView();
    if (quorva::detail::isTabletFor(this))
        dismissPopover(d_func()->m_filterPopover);
}

int QVOffersViewController::firstOfferOnScreen() const
{
    if (!d_func()->m_collectionView)
        return -1;
    // The row under the list's top edge, a point into it so a row's own top counts.
    const qreal y = d_func()->m_collectionView->property("contentY").toReal() + 1;
    int row = -1;
    QMetaObject::invokeMethod(d_func()->m_collectionView, "indexAt", Q_RETURN_ARG(int, row), Q_ARG(qreal, 1), Q_ARG(qreal, y));
    return row < 0 ? -1 : row * d_func()->m_offers->columns();
}

void QVOffersViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    emit cellSizeChanged();
    if (d_func()->m_offers->columns() != columns()) {
        // Rows change their length: the offer at the top of the screen stays there.
        const int firstOffer = firstOfferOnScreen();
        d_func()->m_offers->setColumns(columns());
        if (firstOffer > 0 && d_func()->m_collectionView)
            QMetaObject::invokeMethod(d_func()->m_collectionView, "positionViewAtIndex", Q_ARG(int, firstOffer / columns()),
                                      Q_ARG(int, kListViewBeginning));
    }
    layoutFilterPanel();
    layoutSupportPanel();
    // A size transition (rotation) takes a presented popover away.
    for (QObject *popover : {d_func()->m_filterPopover, d_func()->m_supportPopover}) {
        if (popover && popover->property("visible").toBool() && popover->property("closePolicy").toInt() == kCloseOnEscape)
            dismissPopover(popover);
    }
}
