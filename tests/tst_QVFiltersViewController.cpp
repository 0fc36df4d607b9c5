// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"
#include "WallHarness.h"

#include <QtCore/QPropertyAnimation>
#include "QVSpringCurve.h"
#include <QtTest/QtTest>

namespace {
// The panel's rows by their text.
QMap<QString, QVFilterUICollectionViewCell *> rowsOf(QVFiltersViewController *panel)
{
    QMap<QString, QVFilterUICollectionViewCell *> rows;
    for (QVFilterUICollectionViewCell *cell : WallHarness::listRows<QVFilterUICollectionViewCell>(panel))
        rows.insert(cell->findChild<QQuickItem *>(QStringLiteral("name"))->property("text").toString(), cell);
    return rows;
}

QStringList checkedRows(QVFiltersViewController *panel)
{
    QStringList checked;
    const auto rows = rowsOf(panel);
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        if (it.value()->findChild<QQuickItem *>(QStringLiteral("checkmarkImage"))->isVisible())
            checked << it.key();
    }
    return checked;
}

QStringList headerTitles(QVFiltersViewController *panel)
{
    QStringList titles;
    for (QQuickItem *header : WallHarness::listRows<QVFilterUICollectionViewHeader>(panel))
        titles << header->findChild<QQuickItem *>(QStringLiteral("name"))->property("text").toString();
    titles.sort();
    return titles;
}

bool isWithin(QQuickItem *item, QQuickItem *ancestor)
{
    for (; item; item = item->parentItem()) {
        if (item == ancestor)
            return true;
    }
    return false;
}
} // namespace

class tst_QVFiltersViewController : public ServiceSuite
{
    Q_OBJECT

private slots:
    void init()
    {
        startTest();
        QVFiltersViewController::resetAllCategories();
    }

    void phonePanelDropsInUnderTheHeader()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
        QTRY_COMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));

        harness.click(harness.find(QStringLiteral("filterBtn")));
        QVFiltersViewController *panel = harness.wall->filterVC();
        QVERIFY(panel);
        QCOMPARE(panel->parentItem(), harness.wall);
        QVERIFY(panel->y() < 0); // starts above, out of sight
        QCOMPARE(title->property("text").toString(), QStringLiteral("Sort/Filter Offers"));
        QVERIFY(!harness.find(QStringLiteral("closeBtn"))->isVisible());
        QVERIFY(harness.wall->isFiltersViewOpen());
        QVERIFY(panel->findChild<QQuickItem *>(QStringLiteral("blurredView")));
        QVERIFY(harness.find(QStringLiteral("headerView"))->z() > panel->z());

        // The spring overshoots past its rest position once, by about 12.6 % (damping 0.55:
        // e^(-pi*z/sqrt(1-z^2))), and settles there. Read from the running animation's own
        // curve: a loaded machine may draw no frame during the bounce.
        auto *slide = panel->findChild<QPropertyAnimation *>();
        QVERIFY(slide);
        QCOMPARE(slide->propertyName(), QByteArray("y"));
        QCOMPARE(slide->endValue().toReal(), 0.0);
        double peak = 0, previous = 0;
        int crossings = 0;
        for (int step = 1; step <= 1000; ++step) {
            const double value = slide->easingCurve().valueForProgress(step / 1000.0);
            peak = qMax(peak, value);
            crossings += (previous - 1.0) * (value - 1.0) < 0 ? 1 : 0;
            previous = value;
        }
        QVERIFY2(peak > 1.10 && peak < 1.15 && crossings >= 2, qPrintable(QString::number(peak)));
        QTRY_VERIFY(!harness.wall->isOverlayAnimating());
        QCOMPARE(panel->y(), 0.0);
        QCOMPARE(panel->size(), harness.wall->size());

        QTRY_COMPARE(checkedRows(panel), (QStringList{"All Categories", "Popularity"}));
        QCOMPARE(headerTitles(panel), (QStringList{"Sort by Category", "Sort by Type"}));
        QCOMPARE(rowsOf(panel).keys(), (QStringList{"All Categories", "Credit Delay", "Featured", "Games",
                                                    "Payout: High to Low", "Popularity", "Travel", "Trending"}));
        QVERIFY(!panel->findChild<QQuickItem *>(QStringLiteral("saveButton"))->isVisible());
    }

    void selectionRulesAndSavingReloadsFromZero()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
        QTRY_COMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
        QVFiltersViewController *panel = openPanel(harness);
        QVERIFY(panel);
        QQuickItem *save = panel->findChild<QQuickItem *>(QStringLiteral("saveButton"));

        harness.click(rowsOf(panel).value(QStringLiteral("Popularity"))); // handled within the click
        QVERIFY2(!save->isVisible(), "tapping the checked row changes nothing");

        harness.click(rowsOf(panel).value(QStringLiteral("Trending")));
        QTRY_COMPARE(checkedRows(panel), (QStringList{"All Categories", "Trending"}));
        QVERIFY(save->isVisible());
        harness.click(rowsOf(panel).value(QStringLiteral("Featured")));
        QTRY_COMPARE(checkedRows(panel), (QStringList{"Featured", "Trending"}));

        const int before = m_service.requestsTo("/offers.json");
        m_service.setPayout(7); // the refilled list differs, row for row
        harness.click(save);
        QTRY_COMPARE(m_service.requestsTo("/offers.json"), before + 1);
        const auto query = m_service.offersQueries().last();
        QCOMPARE(query.value("offset"), QStringLiteral("0"));
        QCOMPARE(query.value("sort_by"), QStringLiteral("trending"));
        QCOMPARE(query.value("featured_only"), QStringLiteral("1"));
        QVERIFY(!query.contains("category_id"));
        QTRY_COMPARE(harness.wall->offersList().size(), 30);
        // The refilled list shows the new offers, not the old ones.
        QTRY_COMPARE(harness.cells().first()->row(), 0);
        QTRY_COMPARE(harness.cells().first()->payoutTitle(), QStringLiteral("+7"));
        QVERIFY(!harness.wall->isFiltersViewOpen());
        QVERIFY(harness.find(QStringLiteral("closeBtn"))->isVisible());
        QCOMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
        QTRY_VERIFY(harness.wall->filterVC() == nullptr); // slid out and detached
    }

    void savedChoiceReopensCheckedAndCategoriesLoadOnce()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QVFiltersViewController *panel = openPanel(harness);
        harness.click(rowsOf(panel).value(QStringLiteral("Games")));
        harness.click(rowsOf(panel).value(QStringLiteral("Payout: High to Low")));
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("saveButton")));
        QTRY_VERIFY(harness.wall->filterVC() == nullptr);
        const auto query = m_service.offersQueries().last();
        QCOMPARE(query.value("category_id"), QStringLiteral("3"));
        QCOMPARE(query.value("sort_by"), QStringLiteral("payout"));
        QVERIFY(!query.contains("featured_only"));

        panel = openPanel(harness);
        QTRY_COMPARE(checkedRows(panel), (QStringList{"Games", "Payout: High to Low"}));
        QCOMPARE(m_service.requestsTo("/categories.json"), 1);

        // "All Categories" sends neither a category nor the featured flag.
        harness.click(rowsOf(panel).value(QStringLiteral("All Categories")));
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("saveButton")));
        QTRY_VERIFY(harness.wall->filterVC() == nullptr);
        const auto all = m_service.offersQueries().last();
        QVERIFY(!all.contains("category_id"));
        QVERIFY(!all.contains("featured_only"));
    }

    // The categories arrive while the keyboard is on a choice: every row is built anew,
    // and the keyboard stays on the choice it was on.
    void keyboardStaysOnItsChoiceWhenCategoriesArrive()
    {
        m_service.setHeld(FakeOfferService::Categories, true);
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QVFiltersViewController *panel = openPanel(harness);
        QVERIFY(panel);
        QQuickItem *trending = rowsOf(panel).value(QStringLiteral("Trending"));
        trending->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(!rowsOf(panel).contains(QStringLiteral("Games")));
        m_service.setHeld(FakeOfferService::Categories, false);
        QTRY_VERIFY(rowsOf(panel).contains(QStringLiteral("Games")));
        QTRY_VERIFY(harness.window->activeFocusItem() == rowsOf(panel).value(QStringLiteral("Trending")));
    }

    void reopeningWhileThePanelSlidesOut()
    {
        WallHarness harness;
        QVERIFY(harness.show());
        QVFiltersViewController *first = openPanel(harness);
        QVERIFY(first);
        QPointer<QVFiltersViewController> closing(first);
        harness.wall->headerTapped();
        QVERIFY(harness.wall->isOverlayAnimating()); // still sliding out
        QVERIFY(closing);
        harness.click(harness.find(QStringLiteral("filterBtn")));
        QVFiltersViewController *second = harness.wall->filterVC();
        QVERIFY(second != first);
        QTRY_VERIFY(closing.isNull()); // the old panel finished its slide and went
        QTRY_COMPARE(second->y(), 0.0);
        QVERIFY(harness.wall->isFiltersViewOpen());
    }

    void savingWhileAPageIsInFlight()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QVFiltersViewController *panel = openPanel(harness);
        harness.click(rowsOf(panel).value(QStringLiteral("Trending")));
        m_service.setHeld(FakeOfferService::Offers, true);
        harness.wall->loadMoreOffers(); // the page for offset 30 is now in flight
        QVERIFY(harness.wall->loadingOffers());
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("saveButton")));
        // The list is emptied, but the new first page is dropped by the paging guard; the
        // old filter's late page lands in the emptied list.
        QCOMPARE(harness.wall->offersList().size(), 0);
        m_service.setHeld(FakeOfferService::Offers, false);
        QTRY_COMPARE(harness.wall->offersList().size(), 30);
        QCOMPARE(harness.wall->offersList().first().offerId(), QStringLiteral("30"));
        QCOMPARE(m_service.requestsTo("/offers.json"), 2);
    }

    // Where the popover sits, what closes it and what a turn does are the support
    // centre's popover's rules too, checked there; here what is the filter panel's own.
    void tabletPopover()
    {
        QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Tablet);
        WallHarness harness({1024, 768});
        QVERIFY(harness.show());
        QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
        QTRY_COMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
        QVERIFY(!harness.wall->findChild<QObject *>(QStringLiteral("filterPopover"))); // built when first needed

        QVFiltersViewController *panel = openPanel(harness);
        QVERIFY(panel);
        QObject *popover = harness.wall->findChild<QObject *>(QStringLiteral("filterPopover"));
        QVERIFY(popover);
        QTRY_VERIFY(popover->property("opened").toBool());
        QCOMPARE(panel->topMargin(), QVFiltersViewController::kTabletTopMargin);
        QVERIFY(!harness.wall->isFiltersViewOpen());
        QVERIFY(harness.find(QStringLiteral("closeBtn"))->isVisible());
        QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));

        harness.click(rowsOf(panel).value(QStringLiteral("Credit Delay")));
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("saveButton")));
        QTRY_VERIFY(!popover->property("visible").toBool());
        QTRY_COMPARE(m_service.offersQueries().last().value("sort_by"), QStringLiteral("credit_delay"));
        QCOMPARE(m_service.offersQueries().last().value("offset"), QStringLiteral("0"));
        QTRY_VERIFY(harness.wall->filterVC() == nullptr);
        // No phone overlay was ever opened, so the restored header text is empty.
        QCOMPARE(title->property("text").toString(), QString());
    }

    void categoriesFailure()
    {
        m_service.setDropped(FakeOfferService::Categories, true);
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QTest::ignoreMessage(QtInfoMsg, "Categories request failed");
        harness.click(harness.find(QStringLiteral("filterBtn")));
        QVFiltersViewController *panel = harness.wall->filterVC();
        QTRY_VERIFY(panel->findChild<QObject *>(QStringLiteral("alert")) != nullptr);
        QObject *alert = panel->findChild<QObject *>(QStringLiteral("alert"));
        QCOMPARE(alert->property("title").toString(), QStringLiteral("No Connection"));
        QCOMPARE(alert->property("message").toString(), QStringLiteral("Please check your internet and try again."));
        QVERIFY(!QVFiltersViewController::allCategories().has_value());
        QCOMPARE(panel->numberOfItems(QVFiltersViewController::kCategorySection), 0);
        QTRY_COMPARE(headerTitles(panel), (QStringList{"Sort by Category", "Sort by Type"})); // the empty one keeps its header
        QTRY_VERIFY(alert->property("opened").toBool());
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("alertAction")));
        QTRY_VERIFY(panel->findChild<QObject *>(QStringLiteral("alert")) == nullptr);

        QTRY_COMPARE(panel->y(), 0.0);
        harness.click(rowsOf(panel).value(QStringLiteral("Trending")));
        harness.click(panel->findChild<QQuickItem *>(QStringLiteral("saveButton")));
        QTRY_COMPARE(m_service.offersQueries().last().value("sort_by"), QStringLiteral("trending"));
        QVERIFY(!m_service.offersQueries().last().contains("category_id"));
        QVERIFY(!m_service.offersQueries().last().contains("featured_only"));

        // The next panel tries again.
        m_service.setDropped(FakeOfferService::Categories, false);
        QTRY_VERIFY(harness.wall->filterVC() == nullptr);
        panel = openPanel(harness);
        QTRY_COMPARE(rowsOf(panel).size(), 8);
        QCOMPARE(m_service.requestsTo("/categories.json") >= 2, true);
    }

    void openPanelTakesEveryTouchInItsArea()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QVFiltersViewController *panel = openPanel(harness);
        QVERIFY(panel);
        harness.click(rowsOf(panel).value(QStringLiteral("Trending"))); // reveals the save button
        QQuickItem *save = panel->findChild<QQuickItem *>(QStringLiteral("saveButton"));
        QTRY_VERIFY(save->isVisible());

        // Below the header, every press inside the panel ends at the panel or one of its
        // children, never at the offer list beneath.
        // (Not on the save button itself: a click there would close the panel.)
        const QRectF button = save->mapRectToScene(save->boundingRect());
        const qreal top = QVOffersViewController::headerHeight() + 1;
        QList<QPoint> points;
        for (qreal y = top; y < panel->height(); y += 23) {
            for (qreal x = 3; x < panel->width(); x += 29) {
                const QPointF point = panel->mapToScene(QPointF(x, y));
                if (!button.contains(point))
                    points << point.toPoint();
            }
        }
        points << button.topLeft().toPoint() - QPoint(6, 6) << button.bottomRight().toPoint() + QPoint(6, 6)
               << QPoint(int(button.left()) - 6, int(button.center().y())) << QPoint(int(button.right()) + 6, int(button.center().y()));
        for (const QPoint &point : points) {
            QTest::mousePress(harness.window.get(), Qt::LeftButton, Qt::NoModifier, point);
            QQuickItem *grabber = harness.window->mouseGrabberItem();
            QTest::mouseRelease(harness.window.get(), Qt::LeftButton, Qt::NoModifier, point);
            QVERIFY2(isWithin(grabber, panel), qPrintable(QStringLiteral("press at %1,%2 reached %3")
                                                           .arg(point.x()).arg(point.y())
                                                           .arg(grabber ? grabber->objectName() : QStringLiteral("nothing"))));
        }
        QVERIFY(harness.wall->isFiltersViewOpen());
    }

    void everyRowStaysTappableWithTheSaveButton_data()
    {
        QTest::addColumn<bool>("tablet");
        QTest::newRow("phone") << false;
        QTest::newRow("tablet") << true;
    }

    void everyRowStaysTappableWithTheSaveButton()
    {
        QFETCH(bool, tablet);
        QVDevice::setUserInterfaceIdiom(tablet ? QVDevice::Idiom::Tablet : QVDevice::Idiom::Phone);
        WallHarness harness(tablet ? QSize(1024, 768) : QSize(390, 780));
        QVERIFY(harness.showFirstPage());
        QVFiltersViewController *panel = openPanel(harness);
        QVERIFY(panel);
        harness.click(rowsOf(panel).value(QStringLiteral("Trending")));
        QQuickItem *save = panel->findChild<QQuickItem *>(QStringLiteral("saveButton"));
        QTRY_VERIFY(save->isVisible());
        QQuickItem *list = panel->findChild<QQuickItem *>(QStringLiteral("collectionView"));
        QTRY_COMPARE(panel->numberOfItems(QVFiltersViewController::kCategorySection), 4);
        QTRY_VERIFY(QMetaObject::invokeMethod(list, "positionViewAtEnd") && list->property("atYEnd").toBool());
        QTRY_VERIFY(rowsOf(panel).contains(QStringLiteral("Travel")));
        QVFilterUICollectionViewCell *last = rowsOf(panel).value(QStringLiteral("Travel"));
        const QRectF lastRow = last->mapRectToScene(last->boundingRect());
        const QRectF button = save->mapRectToScene(save->boundingRect());
        const QRectF visible = list->mapRectToScene(list->boundingRect());
        QVERIFY2(lastRow.bottom() <= button.top(), qPrintable(QStringLiteral("row ends at %1, button starts at %2")
                                                                .arg(lastRow.bottom()).arg(button.top())));
        QVERIFY(visible.contains(lastRow));
        harness.click(last);
        QTRY_COMPARE(checkedRows(panel), (QStringList{"Travel", "Trending"}));
    }

    void criticallyDampedSlideNeverOvershoots()
    {
        const QEasingCurve curve = QVSpringCurve::curve(QVSpringCurve::Motion::PanelSlide);
        double previous = 0;
        for (int i = 1; i <= 1000; ++i) {
            const double value = curve.valueForProgress(i / 1000.0);
            QVERIFY(value <= 1.0 + 1e-9);
            QVERIFY(value >= previous - 1e-9);
            previous = value;
        }
        QVERIFY(curve.valueForProgress(0.25) > 0.5);
    }

    void initialVelocitySetsTheStartingSlope_data()
    {
        QTest::addColumn<double>("velocity");
        QTest::newRow("still") << 0.0;
        QTest::newRow("fast") << 4.0;
    }

    void initialVelocitySetsTheStartingSlope()
    {
        QFETCH(double, velocity);
        const QVSpringCurve::Parameters p{1.0, 0.55, velocity};
        const double h = 1e-5;
        const double slope = QVSpringCurve::progress(p, h) / (h * p.durationSeconds);
        QVERIFY2(qAbs(slope - velocity) < 0.01, qPrintable(QString::number(slope)));
    }

private:
    QVFiltersViewController *openPanel(WallHarness &harness)
    {
        harness.click(harness.find(QStringLiteral("filterBtn")));
        QVFiltersViewController *panel = harness.wall->filterVC();
        if (!panel)
            return nullptr;
        const bool settled = QTest::qWaitFor([&] { return !harness.wall->isOverlayAnimating(); }, kPatienceMs)
            && (QVDevice::isTablet() || panel->y() == 0.0)
            && QTest::qWaitFor([&] { return rowsOf(panel).size() >= 4; }, kPatienceMs);
        return settled ? panel : nullptr;
    }
};

QTEST_MAIN(tst_QVFiltersViewController)
#include "tst_QVFiltersViewController.moc"
