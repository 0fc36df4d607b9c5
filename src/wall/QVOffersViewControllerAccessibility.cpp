// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// What a screen reader and the keyboard need of the wall: the offers in screen order, the
// keyboard's place in the list, overlays that are modal for both, and focus that goes back
// where it was when an overlay or an alert closes.
#include "QVOffersViewController.h"
#include "QVOffersViewControllerPrivate.h"
#include "QVOfferUICollectionViewCell.h"
#include "QVOffersListModel.h"
#include "DeviceIdiom.h"
#include "FocusChain.h"

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>

#include <algorithm>

using quorva::detail::focusFirstWhenBuilt;
using quorva::detail::isDescendant;

namespace {
constexpr int kListViewContain = 4; // ListView.Contain
constexpr const char *kAmount = QT_TRANSLATE_NOOP("QVOffersViewController", "%1 %2");
constexpr const char *kNegativeAmount = QT_TRANSLATE_NOOP("QVOffersViewController", "minus %1 %2");

} // namespace

QString QVOffersViewController::currencyName() const
{
    return d_func()->m_currencyName;
}

bool QVOffersViewController::isContentHidden() const
{
    return d_func()->m_contentHidden;
}

bool QVOffersViewController::isHeaderHidden() const
{
    return d_func()->m_headerHidden;
}

bool QVOffersViewController::isOverlayHidden() const
{
    return d_func()->m_overlayHidden;
}

// A window that gave the focus to nothing else gives it to the list once its first offers
// show, so a screen reader starts there and the arrow keys work at once; no ring shows until
// they are used.
void QVOffersViewController::takeFirstFocus()
{
    QQuickWindow *host = window();
    if (!host || !d_func()->m_collectionView)
        return;
    const QQuickItem *focused = host->activeFocusItem();
    if (!focused || focused == host->contentItem())
        d_func()->m_collectionView->forceActiveFocus(Qt::OtherFocusReason);
}

int QVOffersViewController::focusedOffer() const
{
    return d_func()->m_focusedOffer;
}

QString QVOffersViewController::spokenAmount(const QString &amount) const
{
    QString number = amount.trimmed();
    if (number.startsWith(u'+'))
        number.remove(0, 1);
    const bool negative = number.startsWith(u'-');
    if (negative)
        number.remove(0, 1);
    const QString text = tr(negative ? kNegativeAmount : kAmount).arg(number, d_func()->m_currencyName);
    return text.trimmed();
}

void QVOffersViewController::updateModality()
{
    Q_D(QVOffersViewController);
    d->m_openAlerts.removeAll(nullptr);
    const auto shown = [](QObject *popover) { return popover && popover->property("visible").toBool(); };
    const bool popoverOpen = shown(d->m_filterPopover) || shown(d->m_supportPopover);
    const bool overlayOpen = d->m_isFiltersViewOpen || d->m_isSupportViewOpen || popoverOpen;
    const bool alertOpen = !d->m_openAlerts.isEmpty();
    const bool content = overlayOpen || alertOpen;
    const bool header = popoverOpen || alertOpen;
    const bool overlay = alertOpen && overlayOpen;
    if (content == d->m_contentHidden && header == d->m_headerHidden && overlay == d->m_overlayHidden)
        return;
    d->m_contentHidden = content;
    d->m_headerHidden = header;
    d->m_overlayHidden = overlay;
    emit modalityChanged();
}

void QVOffersViewController::overlayWillOpen(QQuickItem *opener)
{
    // Closed, the overlay gives the keyboard back to the control that opened it.
    d_func()->m_focusBeforeOverlay = opener;
}

void QVOffersViewController::overlayDidOpen(QQuickItem *content)
{
    // The keyboard leaves what is now behind before that leaves the Tab order.
    if (content)
        content->forceActiveFocus(Qt::OtherFocusReason);
    updateModality();
    focusFirstWhenBuilt(content);
}

void QVOffersViewController::overlayDidClose()
{
    updateModality();
    if (d_func()->m_contentHidden)
        return;
    // The keyboard goes back to what opened the overlay.
    QQuickItem *back = d_func()->m_focusBeforeOverlay;
    d_func()->m_focusBeforeOverlay = nullptr;
    if (back && back->isVisible() && isDescendant(back, this))
        back->forceActiveFocus(Qt::OtherFocusReason);
}

void QVOffersViewController::alertOpened(QObject *alert)
{
    Q_D(QVOffersViewController);
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    QPointer<QQuickItem> back(focused);
    d->m_openAlerts.append(alert);
    updateModality();
    if (auto *action = alert->findChild<QQuickItem *>(QStringLiteral("alertAction")))
        action->forceActiveFocus(Qt::TabFocusReason);
    // Closed, it goes; the keyboard goes back to where it was or, when that went with
    // what the alert said (a sent form is emptied), to the first control of what it covered.
    QPointer<QQuickItem> covered(alert->property("parent").value<QQuickItem *>());
    QObject::connect(alert, &QObject::destroyed, this, [this, back, covered] {
        updateModality();
        if (back && back->isVisible())
            back->forceActiveFocus(Qt::OtherFocusReason);
        else
            focusFirstWhenBuilt(covered);
    });
}

void QVOffersViewController::moveOfferFocus(int step)
{
    Q_D(QVOffersViewController);
    const int count = d->m_offers->count();
    if (count == 0)
        return;
    const int from = d->m_focusedOffer < 0 ? qMax(0, firstOfferOnScreen()) : d->m_focusedOffer;
    const int to = std::clamp(d->m_focusedOffer < 0 ? from : from + step, 0, count - 1);
    if (to != d->m_focusedOffer) {
        d->m_focusedOffer = to;
        emit focusedOfferChanged();
    }
    // Brought onto the screen; its row's cell is built by then, and the next page is
    // asked for when the last one is.
    if (d->m_collectionView)
        QMetaObject::invokeMethod(d->m_collectionView, "positionViewAtIndex", Q_ARG(int, to / qMax(1, columns())),
                                  Q_ARG(int, kListViewContain));
    focusOfferCell();
}

void QVOffersViewController::focusOfferCell()
{
    Q_D(QVOffersViewController);
    if (!d->m_collectionView)
        return;
    auto *content = d->m_collectionView->property("contentItem").value<QQuickItem *>();
    QList<QQuickItem *> items = content ? content->childItems() : QList<QQuickItem *>();
    for (qsizetype i = 0; i < items.size(); ++i) {
        auto *cell = qobject_cast<QVOfferUICollectionViewCell *>(items[i]);
        if (!cell) {
            items += items[i]->childItems();
            continue;
        }
        if (cell->row() == d->m_focusedOffer && cell->isVisible()) {
            cell->forceActiveFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void QVOffersViewController::offerCellFocused(int row)
{
    if (row == d_func()->m_focusedOffer || row < 0)
        return;
    d_func()->m_focusedOffer = row;
    emit focusedOfferChanged();
}

void QVOffersViewController::activateFocusedOffer()
{
    const int row = d_func()->m_focusedOffer;
    if (row >= 0 && row < d_func()->m_offers->count())
        onCreditsPressed(d_func()->m_offers->at(row).clickURL());
}

void QVOffersViewController::orderRows()
{
    // Once per frame however many rows moved.
    if (d_func()->m_rowsOrderPending)
        return;
    d_func()->m_rowsOrderPending = true;
    polish();
}

bool QVOffersViewController::closeOpenPanel()
{
    Q_D(QVOffersViewController);
    if (!d->m_openAlerts.isEmpty())
        return false;
    if (d->m_isFiltersViewOpen) {
        closeFiltersView();
        return true;
    }
    if (d->m_isSupportViewOpen) {
        closeSupportView();
        return true;
    }
    return false;
}

void QVOffersViewController::putRowsInScreenOrder()
{
    Q_D(QVOffersViewController);
    d->m_rowsOrderPending = false;
    auto *content = d->m_collectionView ? d->m_collectionView->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!content)
        return;
    // Reused rows keep their place among the list's children whatever their place on
    // screen; the accessibility tree reads children in that order.
    QList<QQuickItem *> rows;
    for (QQuickItem *child : content->childItems()) {
        if (child->property("generation").isValid())
            rows.append(child);
    }
    std::stable_sort(rows.begin(), rows.end(), [](QQuickItem *a, QQuickItem *b) { return a->y() < b->y(); });
    for (qsizetype i = 1; i < rows.size(); ++i)
        rows[i]->stackAfter(rows[i - 1]);
    // Scrolled by touch while the keyboard was elsewhere: Tab comes back to the list at
    // the first offer on screen.
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    if (!focused || !isDescendant(focused, d->m_collectionView)) {
        const int first = firstOfferOnScreen();
        if (first >= 0 && first != d->m_focusedOffer) {
            d->m_focusedOffer = first;
            emit focusedOfferChanged();
        }
    }
}
