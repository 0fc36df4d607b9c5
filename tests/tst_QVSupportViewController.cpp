// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"
#include "FaqPropertyList.h"
#include "QVNotificationCenter.h"
#include "SupportHarness.h"

#include <QtCore/QTemporaryDir>

namespace {
// The FAQ cells on screen by row, closed or open.
QMap<int, QQuickItem *> rowsOf(QVFAQViewController *faq)
{
    QMap<int, QQuickItem *> rows;
    for (QQuickItem *cell : WallHarness::listRows<QVQuestionCollectionViewCell>(faq))
        rows.insert(cell->property("row").toInt(), cell);
    for (QQuickItem *cell : WallHarness::listRows<QVQACollectionViewCell>(faq))
        rows.insert(cell->property("row").toInt(), cell);
    return rows;
}

bool isOpen(QQuickItem *cell)
{
    return qobject_cast<QVQACollectionViewCell *>(cell) != nullptr;
}

QList<QVTransactionCollectionViewCell *> rowsOf(QVHistoryViewController *history)
{
    return WallHarness::listRows<QVTransactionCollectionViewCell>(history);
}

QString label(QQuickItem *cell, const char *name)
{
    return cell->findChild<QQuickItem *>(QLatin1StringView(name))->property("text").toString();
}
} // namespace

class tst_QVSupportViewController : public ServiceSuite
{
    Q_OBJECT

private slots:
    void tabsAreBuiltLazilyAndHistoryIsAskedOnce()
    {
        SupportHarness harness;
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
        for (QQuickItem *tab : QList<QQuickItem *>{support->faqViewController(), support->historyViewController(),
                                                    support->emailViewController()}) {
            QCOMPARE(tab->position(), QPointF(0, 50));
            QCOMPARE(tab->size(), QSizeF(support->width(), support->height() - 50));
        }
    }

    void errorStripFollowsTheFormAndTheTabs()
    {
        SupportHarness harness;
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

    void phoneSlidesInFromTheRightUnderTheHeader()
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

    void phonePanelsCloseEachOther()
    {
        SupportHarness harness;
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

    void tabletPopoverHasItsOwnCloseButton()
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

    void profileArrivingWhileOpenIsKeptForLater()
    {
        m_service.setHeld(FakeOfferService::Profile, true);
        SupportHarness harness;
        QVERIFY(harness.openSupport());
        QQuickItem *title = harness.find(QStringLiteral("headerTitle"));
        m_service.setHeld(FakeOfferService::Profile, false);
        QTRY_COMPARE(m_service.requestsTo("/details.json"), 1);
        finishPendingRequests(); // the profile's answer has been delivered
        QCOMPARE(title->property("text").toString(), QStringLiteral("Corvel Support"));
        harness.wall->headerTapped();
        QCOMPARE(title->property("text").toString(), QStringLiteral("Earn Gems"));
    }

    void propertyList_data()
    {
        QTest::addColumn<QByteArray>("contents"); // null: no file at all
        QTest::addColumn<QStringList>("questions");
        const QByteArray entry = "<dict><key>question</key><string>Q1</string><key>answer</key><string>A1</string></dict>";
        QTest::newRow("missing file") << QByteArray() << QStringList();
        QTest::newRow("not XML") << QByteArray("question: answer") << QStringList();
        QTest::newRow("another root") << "<dict>" + entry + "</dict>" << QStringList();
        QTest::newRow("cut off") << "<plist version=\"1.0\"><array>" + entry + "<dict><key>quest" << QStringList();
        QTest::newRow("empty array") << QByteArray("<plist version=\"1.0\"><array/></plist>") << QStringList();
        QTest::newRow("entries in order, odd ones left out")
            << "<plist version=\"1.0\"><array>" + entry
                   + "<dict><key>answer</key><string>no question</string></dict>"
                     "<string>not a dict</string>"
                     "<dict><key>question</key><integer>4</integer></dict>"
                     "<dict><key>question</key><string>Q2 &amp; more</string></dict></array></plist>"
            << QStringList{"Q1", "Q2 & more"};
    }

    void propertyList()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QStringList, questions);
        QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("faqs.plist"));
        if (!contents.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(contents);
        }
        QStringList read;
        for (const auto &entry : quorva::detail::readFaqPropertyList(path))
            read << entry.question;
        QCOMPARE(read, questions);

        // A FAQ built on such a list is simply that long, and says nothing.
        QVFAQViewController faq;
        faq.viewDidLoad(path);
        QCOMPARE(faq.numberOfItems(), questions.size());
    }

    void oneQuestionOpensAtATime()
    {
        const auto shipped = quorva::detail::readFaqPropertyList(QVFAQViewController::faqsResourcePath());
        QVERIFY(shipped.size() >= 12);
        SupportHarness harness;
        QVSupportViewController *support = harness.openSupport();
        QVERIFY(support);
        QVFAQViewController *faq = support->faqViewController();
        QCOMPARE(faq->numberOfItems(), shipped.size());
        QTRY_VERIFY(rowsOf(faq).size() >= 4);
        for (QQuickItem *cell : rowsOf(faq)) {
            QVERIFY(!isOpen(cell));
            QCOMPARE(cell->height(), 100.0);
        }
        QCOMPARE(rowsOf(faq).value(0)->findChild<QQuickItem *>(QStringLiteral("questionLabel"))->property("text").toString(),
                 shipped.first().question);

        harness.click(rowsOf(faq).value(1));
        QTRY_VERIFY(isOpen(rowsOf(faq).value(1)));
        QQuickItem *open = rowsOf(faq).value(1);
        QQuickItem *answer = open->findChild<QQuickItem *>(QStringLiteral("answerLabel"));
        QCOMPARE(answer->property("text").toString(), shipped.at(1).answer);
        // The row is as tall as its answer needs, and the answer fits in it.
        QVERIFY(open->height() > 100);
        QCOMPARE(open->height(), faq->heightForRow(1, open->width()));
        QVERIFY(answer->mapToItem(open, QPointF(0, answer->height())).y() <= open->height());
        QCOMPARE(rowsOf(faq).value(0)->height(), 100.0);

        // Tapping it again keeps it open; tapping another moves the opening there.
        harness.click(open);
        QTRY_VERIFY(faq->model()->rowCount() > 0 && isOpen(rowsOf(faq).value(1)));
        harness.click(rowsOf(faq).value(3));
        QTRY_VERIFY(isOpen(rowsOf(faq).value(3)));
        QVERIFY(!isOpen(rowsOf(faq).value(1)));
        QCOMPARE(rowsOf(faq).value(1)->height(), 100.0);
        QCOMPARE(faq->selectedIndexPath(), 3);

        // A longer answer makes a taller row; a closed one stays at 100 however long.
        const qreal width = rowsOf(faq).value(3)->width();
        QVERIFY(QVQACollectionViewCell::fittingHeight(QStringLiteral("Q?"), QString(600, u'a').replace(7, 1, u' '), width)
                > QVQACollectionViewCell::fittingHeight(QStringLiteral("Q?"), QStringLiteral("Short."), width));
    }

    void rowsFollowTheListWidth()
    {
        SupportHarness harness({390, 780});
        QVSupportViewController *support = harness.openSupport();
        QVERIFY(support);
        QVFAQViewController *faq = support->faqViewController();
        faq->didSelectItem(0);
        QTRY_VERIFY(isOpen(rowsOf(faq).value(0)));
        const qreal narrowHeight = rowsOf(faq).value(0)->height();
        harness.resize({700, 780});
        QTRY_COMPARE(rowsOf(faq).value(0)->width(), 700.0);
        QTRY_VERIFY(rowsOf(faq).value(0)->height() < narrowHeight); // fewer lines when wider
        QCOMPARE(rowsOf(faq).value(0)->height(), faq->heightForRow(0, 700));
    }

    void rowsShowTheCreditedOffers()
    {
        m_service.setHistory(200, R"({"transactions":[
            {"offer_name":"Dragon Realms","timestamp":"2015-03-04T17:22:05+0000","currency_adjustment":1234.5},
            {"offer_name":"Refund","timestamp":"2015-03-05T01:00:00+0200","currency_adjustment":-5},
            {"offer_name":"Odd date","timestamp":"yesterday","currency_adjustment":40}]})");
        SupportHarness harness;
        QVHistoryViewController *history = openHistory(harness);
        QVERIFY(history);
        QTRY_COMPARE(rowsOf(history).size(), 3);
        const auto rows = rowsOf(history);
        QCOMPARE(label(rows[0], "offernameLabel"), QStringLiteral("Dragon Realms"));
        QCOMPARE(label(rows[0], "dateLabel"), QStringLiteral("03/04/2015 05:22:05"));
        QCOMPARE(label(rows[0], "payoutLabel"), QStringLiteral("+1,234.5"));
        QCOMPARE(label(rows[1], "payoutLabel"), QStringLiteral("+-5")); // the plus is always written
        QCOMPARE(label(rows[1], "dateLabel"), QStringLiteral("03/04/2015 11:00:00"));
        QCOMPARE(label(rows[2], "dateLabel"), QString());
        QCOMPARE(label(rows[0], "statusLabel"), QStringLiteral("Credited"));
        for (QQuickItem *row : rows) {
            QCOMPARE(row->height(), 130.0);
            QCOMPARE(row->width(), history->width());
        }
        auto *list = history->findChild<QQuickItem *>(QStringLiteral("collectionView"));
        QCOMPARE(rows[0]->mapToItem(list, QPointF()).y(), 5.0);
        QVERIFY(!history->findChild<QQuickItem *>(QStringLiteral("noOffersCompleted"))->isVisible());
    }

    // An answer without rows shows the label; a failure shows nothing at all: no label, no
    // message, no retry.
    void historyWithoutRows_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("dropped");
        QTest::newRow("no content") << 204 << QByteArray() << false;
        QTest::newRow("an empty list") << 200 << QByteArray(R"({"transactions":[]})") << false;
        QTest::newRow("an error page") << 500 << QByteArray("<html>down</html>") << false;
        QTest::newRow("a dropped connection") << 200 << QByteArray() << true;
    }

    void historyWithoutRows()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, dropped);
        m_service.setHistory(status, body);
        m_service.setDropped(FakeOfferService::History, dropped);
        if (status == 204)
            QTest::ignoreMessage(QtInfoMsg, "No transactions in history");
        SupportHarness harness;
        QVHistoryViewController *history = openHistory(harness);
        QVERIFY(history);
        QQuickItem *empty = history->findChild<QQuickItem *>(QStringLiteral("noOffersCompleted"));
        QCOMPARE(empty->isVisible(), !dropped);
        QCOMPARE(empty->property("text").toString(), QStringLiteral("No offers completed yet"));
        QVERIFY(rowsOf(history).isEmpty());
        QVERIFY(!harness.wall->findChild<QObject *>(QStringLiteral("alert")));
        QCOMPARE(m_service.callsTo(FakeOfferService::History), 1);
    }

private:
    QVHistoryViewController *openHistory(SupportHarness &harness)
    {
        QVSupportViewController *support = harness.openSupport();
        if (!support)
            return nullptr;
        SupportHarness::showTab(support, QVSupportViewController::HistoryTab);
        QVHistoryViewController *history = support->historyViewController();
        return QTest::qWaitFor([history] { return !history->isLoading(); }, kPatienceMs) ? history : nullptr;
    }
};

QTEST_MAIN(tst_QVSupportViewController)
#include "tst_QVSupportViewController.moc"
