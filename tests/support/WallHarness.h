// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Patience.h"

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QtTest>

#include <atomic>
#include <memory>

// Waits until a frame that began after this call is on screen, by which time new items
// have been laid out. Frames are swapped on the render thread, so they are counted
// there; the first one counted may end a frame that was already under way.
inline bool waitForNextFrame(QQuickWindow *window)
{
    auto swaps = std::make_shared<std::atomic<int>>(0);
    const auto counting = QObject::connect(window, &QQuickWindow::frameSwapped, window,
                                           [swaps] { ++*swaps; }, Qt::DirectConnection);
    const bool drawn = QTest::qWaitFor([&] {
        window->update();
        return *swaps >= 2;
    }, kPatienceMs);
    QObject::disconnect(counting);
    return drawn;
}

// A host window with one wall in it, created through the public factory.
class WallHarness : public QVOffersViewControllerDelegate
{
public:
    explicit WallHarness(QSize size = {390, 780}, const QString &wallId = QStringLiteral("7"))
    {
        window = std::make_unique<QQuickWindow>();
        window->resize(size);
        wall = QVOffersViewController::newOffersWallForPublisherId(QStringLiteral("1042"), wallId,
                                                                   QStringLiteral("user-1"), this);
    }
    ~WallHarness() override
    {
        delete wall;
    }

    // Putting the wall into the shown window is what loads it. Returns once it is on
    // screen and laid out, so a click lands where the user would see the button. A
    // Wayland compositor hands a new window the keyboard focus a little after it shows;
    // until then a field clicked takes no focus, so there it waits for that too. (On X11
    // suites side by side share one server, where asking for the focus would take it
    // from each other.)
    bool show()
    {
        wall->setParentItem(window->contentItem());
        wall->setSize(window->size());
        window->show();
        const bool focusFromCompositor = QGuiApplication::platformName() == QLatin1String("wayland");
        return QTest::qWaitForWindowExposed(window.get())
            && (!focusFromCompositor || QTest::qWaitFor([this] { return window->isActive(); }, kPatienceMs))
            && nextFrame();
    }

    // Shown, and the first page of offers in the list.
    bool showFirstPage()
    {
        return show() && QTest::qWaitFor([this] { return wall->offersList().size() == 30; }, kPatienceMs);
    }

    // Waits until a frame that began after this call is on screen.
    bool nextFrame() { return waitForNextFrame(window.get()); }

    void resize(QSize size)
    {
        window->resize(size);
        wall->setSize(size);
    }

    template <typename T = QQuickItem>
    T *find(const QString &objectName) const
    {
        return wall->findChild<T *>(objectName);
    }

    QQuickItem *list() const { return find(QStringLiteral("collectionView")); }

    // Every item below root in the visual tree (list cells and popup contents are not
    // QObject children), root first.
    static QList<QQuickItem *> itemsBelow(QQuickItem *root)
    {
        QList<QQuickItem *> items{root};
        for (qsizetype i = 0; i < items.size(); ++i)
            items += items[i]->childItems();
        return items;
    }

    // The visible delegates of type T in owner's list, top to bottom.
    template <typename T>
    static QList<T *> listRows(QQuickItem *owner)
    {
        QList<T *> rows;
        auto *list = owner->findChild<QQuickItem *>(QStringLiteral("collectionView"));
        for (QQuickItem *child : list->property("contentItem").value<QQuickItem *>()->childItems()) {
            if (auto *row = qobject_cast<T *>(child); row && row->isVisible())
                rows.append(row);
        }
        std::sort(rows.begin(), rows.end(), [](T *a, T *b) { return a->y() < b->y(); });
        return rows;
    }

    // Offer cells currently laid out in the list (rows hold one or two), in offer order.
    QList<QVOfferUICollectionViewCell *> cells() const
    {
        QList<QVOfferUICollectionViewCell *> result;
        QList<QQuickItem *> items{list()->property("contentItem").value<QQuickItem *>()};
        for (qsizetype i = 0; i < items.size(); ++i) {
            auto *cell = qobject_cast<QVOfferUICollectionViewCell *>(items[i]);
            if (cell && cell->isVisible() && cell->parentItem()->isVisible() && cell->row() >= 0
                && cell->row() < wall->offerCount())
                result.append(cell);
            else if (!cell)
                items += items[i]->childItems();
        }
        std::sort(result.begin(), result.end(), [](auto *a, auto *b) { return a->row() < b->row(); });
        return result;
    }

    void scrollToEnd() const { QMetaObject::invokeMethod(list(), "positionViewAtEnd"); }
    void scrollToStart() const { QMetaObject::invokeMethod(list(), "positionViewAtBeginning"); }

    void click(QQuickItem *item) const
    {
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(window.get(), Qt::LeftButton, Qt::NoModifier, centre.toPoint());
    }

    QObject *alert() const { return wall->findChild<QObject *>(QStringLiteral("alert")); }

    void onCloseOffersVCPressed() override { ++closePresses; }

    std::unique_ptr<QQuickWindow> window;
    QVOffersViewController *wall = nullptr;
    int closePresses = 0;
};
