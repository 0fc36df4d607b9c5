#include "Patience.h"
#include "FakeOfferService.h"
#include "QVNotificationCenter.h"
#include "SupportHarness.h"


class tst_QVSupportViewController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { finishPendingRequests(); }

    void tabsAreBuiltLazilyAndHistoryIsAskedOnce();
    void errorStripFollowsTheFormAndTheTabs();
    void phoneSlidesInFromTheRightUnderTheHeader();
    void phonePanelsCloseEachOther();
    void tabletPopoverHasItsOwnCloseButton();
    void profileArrivingWhileOpenIsKeptForLater();

private:
    FakeOfferService m_service;
};

void tst_QVSupportViewController::initTestCase()
{
    QuorvaRestAPI::sharedInstance()->addCaCertificates(m_service.server().caCertificates());
}

void tst_QVSupportViewController::init()
{
    QuorvaRestAPI::sharedInstance()->setServiceBaseAddress(m_service.baseAddress());
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Phone);
    m_service.setProfileHeld(false);
    m_service.server().clearRequests();
}

void tst_QVSupportViewController::tabsAreBuiltLazilyAndHistoryIsAskedOnce()
{
    SupportHarness harness;
    QVERIFY(harness.show());
    QVSupportViewController *support = harness.openSupport();
    QVERIFY(support);
    // The FAQ opens first; history and form do not exist yet, nor does a history request.
    QVERIFY(support->findChild<QVFAQViewController *>(QStringLiteral("faqVC"))->isVisible());
    QVERIFY(!support->findChild<QVHistoryViewController *>());
    QVERIFY(!support->findChild<QVEmailViewController *>());
    QCOMPARE(m_service.requestsTo("/transactions.json"), 0);
    QCOMPARE(support->backgroundColor(), QColor(Qt::white));

    // The first change of tab builds all three, and asks for the history then.
    SupportHarness::showTab(support, QVSupportViewController::FormTab);
    QVERIFY(support->findChild<QVHistoryViewController *>(QStringLiteral("historyVC")));
    QVERIFY(support->emailViewController()->isVisible());
    QVERIFY(!support->faqViewController()->isVisible());
    QCOMPARE(support->backgroundColor(), QColor(0xF2, 0xF2, 0xF2));
    QTRY_COMPARE(m_service.requestsTo("/transactions.json"), 1);
    QTRY_VERIFY(!support->historyViewController()->isLoading());

    for (int tab : {0, 1, 2, 1, 0}) {
        SupportHarness::showTab(support, tab);
        QCOMPARE(support->faqViewController()->isVisible(), tab == 0);
        QCOMPARE(support->historyViewController()->isVisible(), tab == 1);
        QCOMPARE(support->emailViewController()->isVisible(), tab == 2);
    }
    QCOMPARE(support->findChildren<QVHistoryViewController *>().size(), 1);
    QCOMPARE(support->findChildren<QVEmailViewController *>().size(), 1);
    QCOMPARE(support->findChildren<QVFAQViewController *>().size(), 1);
    QCOMPARE(m_service.requestsTo("/transactions.json"), 1);
    // Every tab sits 50 points below the top and fills the rest.
    for (QQuickItem *tab : {static_cast<QQuickItem *>(support->faqViewController()),
                            static_cast<QQuickItem *>(support->historyViewController()),
                            static_cast<QQuickItem *>(support->emailViewController())}) {
        QCOMPARE(tab->position(), QPointF(0, 50));
        QCOMPARE(tab->size(), QSizeF(support->width(), support->height() - 50));
    }
}

void tst_QVSupportViewController::errorStripFollowsTheFormAndTheTabs()
{
    SupportHarness harness;
    QVERIFY(harness.show());
    QVEmailViewController *form = harness.openForm();
    QVERIFY(form);
    QVSupportViewController *support = harness.wall->supportVC();
    QQuickItem *strip = support->errorLabel();
    QVERIFY(!strip->isVisible());
    support->invalidInputMessage(QStringLiteral("Please enter a valid name"));
    QVERIFY(strip->isVisible());
    QCOMPARE(strip->property("text").toString(), QStringLiteral("Please enter a valid name"));
    QCOMPARE(strip->y(), 50.0);

    // Any field view leaving its error look hides it, through the notifier.
    QVNotificationCenter::defaultCenter()->post(QVNotificationCenter::kHideErrorMessageNotification, nullptr);
    QVERIFY(!strip->isVisible());
    support->invalidInputMessage(QStringLiteral("Please enter a valid email"));
    SupportHarness::showTab(support, QVSupportViewController::FaqTab);
    QVERIFY(!strip->isVisible());
}

void tst_QVSupportViewController::phoneSlidesInFromTheRightUnderTheHeader()
{
    SupportHarness harness;
    QVERIFY(harness.show());
    QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
    QTRY_COMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
    harness.click(harness.find(QStringLiteral("supportBtn")));
    QVSupportViewController *support = harness.wall->supportVC();
    QVERIFY(support);
    QCOMPARE(support->parentItem(), harness.wall);
    QVERIFY(support->x() > 0); // starts off to the right
    QCOMPARE(title->property("text").toString(), QStringLiteral("Corvel Support"));
    QVERIFY(!harness.find(QStringLiteral("closeBtn"))->isVisible());
    QVERIFY(harness.wall->isSupportViewOpen());
    QVERIFY(harness.find(QStringLiteral("headerView"))->z() > support->z());
    // The slide never overshoots: x only falls, down to its rest.
    qreal previous = support->x();
    bool monotonic = true;
    QVERIFY(QTest::qWaitFor([&] {
        monotonic &= support->x() <= previous;
        previous = support->x();
        return !harness.wall->isOverlayAnimating();
    }, kPatienceMs));
    QVERIFY(monotonic);
    QCOMPARE(support->position(), QPointF(0, 80));
    QCOMPARE(support->size(), QSizeF(harness.wall->width(), harness.wall->height() - 80));

    // Support again slides it out to the right and lets it go.
    QPointer<QVSupportViewController> closing(support);
    harness.click(harness.find(QStringLiteral("supportBtn")));
    QVERIFY(!harness.wall->isSupportViewOpen());
    QVERIFY(harness.find(QStringLiteral("closeBtn"))->isVisible());
    QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
    QTRY_VERIFY(closing.isNull());
}

void tst_QVSupportViewController::phonePanelsCloseEachOther()
{
    SupportHarness harness;
    QVERIFY(harness.show());
    QVERIFY(harness.openSupport());
    // Filter while support is open only closes support.
    harness.click(harness.find(QStringLiteral("filterBtn")));
    QVERIFY(!harness.wall->isSupportViewOpen());
    QVERIFY(!harness.wall->isFiltersViewOpen());
    QTRY_VERIFY(!harness.wall->isOverlayAnimating());

    // A tap on the header closes it too.
    QVERIFY(harness.openSupport());
    QQuickItem *header = harness.find(QStringLiteral("headerView"));
    QTest::mouseClick(harness.window.get(), Qt::LeftButton, Qt::NoModifier,
                      header->mapToScene(QPointF(header->width() / 2, header->height() / 2)).toPoint());
    QVERIFY(!harness.wall->isSupportViewOpen());
    QTRY_VERIFY(harness.wall->supportVC() == nullptr);

    // Support while the filter panel is open only closes the panel.
    harness.click(harness.find(QStringLiteral("filterBtn")));
    QTRY_VERIFY(harness.wall->isFiltersViewOpen() && !harness.wall->isOverlayAnimating());
    harness.click(harness.find(QStringLiteral("supportBtn")));
    QVERIFY(!harness.wall->isFiltersViewOpen());
    QVERIFY(!harness.wall->isSupportViewOpen());
    QVERIFY(harness.wall->supportVC() == nullptr);

    // A tap on the header closes the filter panel too.
    harness.click(harness.find(QStringLiteral("filterBtn")));
    QTRY_VERIFY(harness.wall->isFiltersViewOpen() && !harness.wall->isOverlayAnimating());
    QTest::mouseClick(harness.window.get(), Qt::LeftButton, Qt::NoModifier,
                      header->mapToScene(QPointF(header->width() / 2 + 60, header->height() / 2)).toPoint());
    QVERIFY(!harness.wall->isFiltersViewOpen());
    QVERIFY(harness.find(QStringLiteral("closeBtn"))->isVisible());
    QTRY_VERIFY(harness.wall->filterVC() == nullptr);
}

void tst_QVSupportViewController::tabletPopoverHasItsOwnCloseButton()
{
    QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Tablet);
    SupportHarness harness({1024, 768});
    QVERIFY(harness.show());
    QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
    QTRY_COMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
    QVSupportViewController *support = harness.openSupport();
    QVERIFY(support);
    QObject *popover = harness.wall->findChild<QObject *>(QStringLiteral("supportPopover"));
    QCOMPARE(popover->property("width").toReal(), 360.0);
    QCOMPARE(popover->property("height").toReal(), 768 * 0.65);
    QQuickItem *button = harness.find(QStringLiteral("supportBtn"));
    const QRectF anchor = button->mapRectToItem(harness.wall, button->boundingRect());
    QCOMPARE(popover->property("x").toReal() + popover->property("arrowX").toReal(), anchor.center().x());
    QCOMPARE(popover->property("y").toReal(), anchor.bottom());
    QVERIFY(support->isVisible() && support->width() > 300);
    // No phone overlay: the flags stay down and the header stays as it was.
    QVERIFY(!harness.wall->isSupportViewOpen());
    QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));

    // A tap outside does not close it...
    QTest::mouseClick(harness.window.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 500));
    QVERIFY(popover->property("opened").toBool());
    // ...its own button does, and the centre goes with it.
    QPointer<QVSupportViewController> closing(support);
    harness.click(harness.find(QStringLiteral("supportCloseBtn")));
    QTRY_VERIFY(!popover->property("visible").toBool());
    QTRY_VERIFY(closing.isNull());

    // A size change (rotation) takes it away as well.
    QVERIFY(harness.openSupport());
    harness.resize({768, 1024});
    QTRY_VERIFY(!popover->property("visible").toBool());
    QTRY_VERIFY(harness.wall->supportVC() == nullptr);
}

void tst_QVSupportViewController::profileArrivingWhileOpenIsKeptForLater()
{
    m_service.setProfileHeld(true);
    SupportHarness harness;
    QVERIFY(harness.show());
    QVERIFY(harness.openSupport());
    QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
    m_service.setProfileHeld(false);
    QTRY_COMPARE(m_service.requestsTo("/details.json"), 1);
    finishPendingRequests(); // the profile's answer has been delivered
    QCOMPARE(title->property("text").toString(), QStringLiteral("Corvel Support"));
    harness.wall->headerTapped();
    QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
}

QTEST_MAIN(tst_QVSupportViewController)
#include "tst_QVSupportViewController.moc"
