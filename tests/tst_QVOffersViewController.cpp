// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVImageCache.h"
#include "QVImageView.h"
#include "ServiceSuite.h"
#include "LogCapture.h"
#include "WallHarness.h"

#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtGui/QPalette>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

using quorva::http::HttpRequest;

// Records the addresses the wall hands to the system browser.
class BrowserProbe : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl &url) { opened.append(url); }
};

namespace {
// True when the grabbed pixel is the colour, give or take the rasteriser's rounding.
bool drawnIn(const QImage &frame, QPointF at, const QColor &colour)
{
    const QColor pixel = frame.pixelColor(at.toPoint() * frame.devicePixelRatio());
    return qAbs(pixel.red() - colour.red()) <= 3 && qAbs(pixel.green() - colour.green()) <= 3
        && qAbs(pixel.blue() - colour.blue()) <= 3;
}
} // namespace

// The shared objects mapped into this process whose path holds the fragment.
QStringList mappedLibraries(const QString &fragment)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QStringList found;
    if (!maps.open(QIODevice::ReadOnly))
        return {QStringLiteral("(no /proc/self/maps)")};
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const QString path = QString::fromLocal8Bit(line.mid(line.indexOf('/')));
        if (line.contains('/') && path.contains(fragment) && !found.contains(path))
            found.append(path);
    }
    return found;
}

class tst_QVOffersViewController : public ServiceSuite
{
    Q_OBJECT

private slots:
    void init()
    {
        startTest();
        QVImageCache::sharedImageCache()->clear();
    }

    // First of the suite, so nothing else has loaded them: the first screen with its
    // pictures brings no image plugin (its pictures are PNG, its icons SVG drawn by the
    // module), no control module, no effects and no overlay's models.
    void firstScreenLoadsOnlyWhatItDraws()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QTRY_VERIFY(harness.cells().first()->thumbImage()->hasImage());
        for (const char *fragment : {"/imageformats/", "QuickControls2Impl", "quickcontrols2impl", "Qt5Compat",
                                     "LabsQmlModels", "labsmodels"}) {
            const QStringList loaded = mappedLibraries(QString::fromLatin1(fragment));
            QVERIFY2(loaded.isEmpty(), qPrintable(loaded.join(QStringLiteral(", "))));
        }
    }

    void loadsWhenFirstShownWithTargetingApplied()
    {
        WallHarness harness;
        harness.wall->setGender(1);
        harness.wall->setAgeRange(2);
        harness.wall->setSubid2(QStringLiteral("campaign"));
        QVERIFY(!harness.wall->loadingOffers()); // not loaded before it is shown
        QCOMPARE(m_service.requestsTo("/offers.json"), 0);
        QVERIFY(harness.showFirstPage());
        const auto query = m_service.offersQueries().first();
        QCOMPARE(query.value("offset"), QStringLiteral("0"));
        QCOMPARE(query.value("gender"), QStringLiteral("f"));
        QCOMPARE(query.value("age_range_id"), QStringLiteral("3"));
        QCOMPARE(query.value("subid2"), QStringLiteral("campaign"));
        QCOMPARE(query.value("subid1"), QStringLiteral("user-1"));
    }

    // Pages follow the list to its end, where the service's "no content" stops them.
    void pagesAsTheListScrolls()
    {
        m_service.setTotalOffers(70);
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        QVERIFY(!harness.wall->loadingOffers()); // the last cell is not built yet
        QCOMPARE(m_service.requestsTo("/offers.json"), 1);
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 70);
        harness.scrollToEnd();
        QTRY_VERIFY(!harness.wall->moreOffersAvailable());
        const auto queries = m_service.offersQueries();
        QCOMPARE(queries.size(), 4);
        QCOMPARE(queries[1].value("offset"), QStringLiteral("30"));
        QCOMPARE(queries[3].value("offset"), QStringLiteral("70"));
        QCOMPARE(harness.list()->property("count").toInt(), 70);
        harness.scrollToStart();
        QTRY_COMPARE(harness.cells().first()->row(), 0);
        harness.scrollToEnd();
        QTRY_COMPARE(harness.cells().last()->row(), 69);
        QVERIFY(!harness.wall->loadingOffers()); // showing the last cell asked for nothing
        QCOMPARE(m_service.requestsTo("/offers.json"), 4);
        QVERIFY(!harness.find(QStringLiteral("noOffersLabel"))->isVisible());

        // At rest nothing turns: a hidden loading ring that kept turning would have every
        // tap wait for the compositor's next frame, and drain a phone's battery.
        QTRY_COMPARE(runningAnimations(harness.wall), QStringList());
    }

    static QStringList runningAnimations(QQuickItem *root)
    {
        QStringList running;
        for (QQuickItem *item : WallHarness::itemsBelow(root)) {
            for (QObject *child : item->children()) {
                if (child->inherits("QQuickAbstractAnimation") && child->property("running").toBool())
                    running.append(QString::fromLatin1(item->metaObject()->className()));
            }
        }
        return running;
    }

    void lastCellShownOftenSendsOneRequest()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        m_service.setHeld(FakeOfferService::Offers, true);
        for (int i = 0; i < 5; ++i) {
            harness.scrollToEnd();
            QTRY_COMPARE(harness.cells().last()->row(), 29);
            QVERIFY(harness.wall->loadingOffers());
            harness.scrollToStart();
            QTRY_COMPARE(harness.cells().first()->row(), 0);
        }
        QTRY_COMPARE(m_service.requestsTo("/offers.json"), 2);
        m_service.setHeld(FakeOfferService::Offers, false);
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
        QCOMPARE(m_service.requestsTo("/offers.json"), 2);
    }

    void emptyListShowsLabel()
    {
        m_service.setTotalOffers(0);
        WallHarness harness;
        QVERIFY(harness.show());
        QQuickItem *label = harness.find(QStringLiteral("noOffersLabel"));
        QVERIFY(label);
        QTRY_VERIFY(label->isVisible());
        QVERIFY(!harness.wall->moreOffersAvailable());
        QVERIFY(!harness.wall->loadingOffers());
        QCOMPARE(m_service.requestsTo("/offers.json"), 1);
        QVERIFY(harness.alert() == nullptr);
    }

    void failedPageAlertsAndScrollingRetries()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        m_service.setDropped(FakeOfferService::Offers, true);
        QTest::ignoreMessage(QtInfoMsg, "offers request failed");
        harness.scrollToEnd();
        QTRY_VERIFY(harness.alert() != nullptr);
        QObject *alert = harness.alert();
        QCOMPARE(alert->property("title").toString(), QStringLiteral("No Connection"));
        QCOMPARE(alert->property("message").toString(), QStringLiteral(" Please check your internet and try again."));
        QVERIFY(!harness.wall->loadingOffers());
        QCOMPARE(harness.wall->offersList().size(), 30); // nothing lost

        auto *action = harness.find(QStringLiteral("alertAction"));
        QVERIFY(action);
        QCOMPARE(action->property("text").toString(), QStringLiteral("Ok"));
        QTRY_VERIFY(alert->property("opened").toBool());
        harness.click(action);
        QTRY_VERIFY(harness.alert() == nullptr);

        // The list still holds offers, so there is no inline retry.
        QVERIFY(!harness.find(QStringLiteral("retryButton"))->isVisible());
        m_service.setDropped(FakeOfferService::Offers, false);
        harness.scrollToStart();
        QTRY_VERIFY(harness.cells().first()->row() == 0);
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
    }

    void failedFirstPageOffersTryAgain_data()
    {
        QTest::addColumn<bool>("stalled");
        QTest::newRow("connection dropped") << false;
        QTest::newRow("no answer until the time-out") << true;
    }

    void failedFirstPageOffersTryAgain()
    {
        QFETCH(bool, stalled);
        if (stalled) {
            m_service.setOffersStalled(true);
            QuorvaRestAPI::sharedInstance()->setTransferTimeout(std::chrono::milliseconds(500));
            QTest::ignoreMessage(QtWarningMsg, "offers request timed out after 500 ms");
        } else {
            m_service.setDropped(FakeOfferService::Offers, true);
        }
        m_service.setDropped(FakeOfferService::Profile, true);
        QTest::ignoreMessage(QtInfoMsg, "offers request failed");
        QTest::ignoreMessage(QtInfoMsg, "Currency count request failed");
        WallHarness harness;
        QVERIFY(harness.show());
        QTRY_VERIFY(harness.alert() != nullptr); // the alert stays
        QVERIFY(!harness.wall->loadingOffers());  // the paging guard is released
        QQuickItem *retry = harness.find(QStringLiteral("retryButton"));
        QVERIFY(retry);
        QTRY_VERIFY(retry->isVisible());
        QCOMPARE(retry->property("text").toString(), QStringLiteral("Try again"));
        // A layout pass after the failure (the rows are put in order on any) keeps
        // saying the load failed, not that there are no offers.
        harness.wall->polish();
        QVERIFY(harness.nextFrame());
        QVERIFY(!harness.find(QStringLiteral("noOffersLabel"))->isVisible());
        QTRY_VERIFY(harness.alert()->property("opened").toBool());
        harness.click(harness.find(QStringLiteral("alertAction")));
        QTRY_VERIFY(harness.alert() == nullptr);

        m_service.setDropped(FakeOfferService::Offers, false);
        m_service.setOffersStalled(false);
        m_service.setDropped(FakeOfferService::Profile, false);
        const int before = m_service.requestsTo("/offers.json");
        harness.click(retry);
        QTRY_COMPARE(harness.wall->offersList().size(), 30);
        QCOMPARE(m_service.requestsTo("/offers.json"), before + 1);
        QCOMPARE(m_service.offersQueries().last().value("offset"), QStringLiteral("0"));
        QVERIFY(!retry->isVisible());
        // The title that failed with the first page comes back with it.
        QTRY_COMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
    }

    // The title from the profile is checked where the wall loads; here its failure.
    void profileFailsSilently()
    {
        m_service.setDropped(FakeOfferService::Profile, true);
        QTest::ignoreMessage(QtInfoMsg, "Currency count request failed");
        LogCapture log;
        WallHarness harness;
        QVERIFY(harness.show());
        QTRY_VERIFY(log.contains(QStringLiteral("Currency count request failed")));
        QTRY_COMPARE(harness.wall->offersList().size(), 30);
        QCOMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QString());
        QVERIFY(harness.alert() == nullptr); // the profile fails silently
    }

    void twoColumnsInAWideWindow()
    {
        WallHarness harness({600, 700});
        QVERIFY(harness.show());
        QTRY_VERIFY(harness.cells().size() >= 2);
        auto *content = harness.list()->property("contentItem").value<QQuickItem *>();
        auto place = [content](QQuickItem *cell) { return cell->mapRectToItem(content, cell->boundingRect()); };
        QCOMPARE(place(harness.cells()[1]).x(), 0.0); // one column: the second offer is below
        QCOMPARE(place(harness.cells()[1]).y(), place(harness.cells()[0]).bottom());
        QCOMPARE(harness.cells()[0]->size(), QSizeF(600, 140));
        harness.resize({601, 700});
        QTRY_COMPARE(harness.wall->columns(), 2);
        QTRY_COMPARE(place(harness.cells()[1]).x(), 300.5); // side by side
        QCOMPARE(place(harness.cells()[1]).y(), place(harness.cells()[0]).y());
        QCOMPARE(harness.cells()[0]->size(), QSizeF(300.5, 150));
        QCOMPARE(harness.cells()[2]->row(), 2);
    }

    void turningKeepsTheFirstOfferOnScreen()
    {
        WallHarness harness;
        QVERIFY(harness.showFirstPage());
        // Offers whose cells show inside the list's height, top first.
        auto offersOnScreen = [&] {
            QMap<qreal, int> offers;
            for (QVOfferUICollectionViewCell *cell : harness.cells()) {
                const QPointF at = cell->mapToItem(harness.list(), QPointF(0, 0));
                if (at.y() > -cell->height() / 2 && at.y() < harness.list()->height())
                    offers.insert(at.y() * 10000 + at.x(), cell->row());
            }
            return offers.values();
        };
        QMetaObject::invokeMethod(harness.list(), "positionViewAtIndex", Q_ARG(int, 11), Q_ARG(int, 0)); // at the top
        QVERIFY(harness.nextFrame());
        const int first = offersOnScreen().value(0, -1);
        QCOMPARE(first, 11);
        for (const QSize size : {QSize(780, 390), QSize(390, 780), QSize(1024, 768), QSize(390, 780)}) {
            harness.resize(size);
            QVERIFY(harness.nextFrame());
            QTRY_VERIFY2(offersOnScreen().contains(first),
                         qPrintable(QStringLiteral("offer %1 after turning to %2 wide").arg(first).arg(size.width())));
        }
    }

    void scrolledCellsAreReusedAndShowTheirOffers_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("phone, one column") << QSize(390, 780);
        QTest::newRow("tablet, two columns") << QSize(1024, 768);
    }

    void scrolledCellsAreReusedAndShowTheirOffers()
    {
        // Rows leaving the screen come back as the rows entering it, each showing its own
        // offer; no cell is built ahead of need, and none outlives the wall.
        QFETCH(QSize, size);
        m_service.setTotalOffers(90);
        WallHarness harness(size);
        QVERIFY(harness.showFirstPage());
        const int perRow = harness.wall->columns();
        const qreal rowHeight = harness.wall->cellSize().height();
        const int rowsOnScreen = int(std::ceil(harness.list()->height() / rowHeight)) + 1;
        QSet<QVOfferUICollectionViewCell *> seen;
        QList<QPointer<QVOfferUICollectionViewCell>> built;
        // Empty when every visible cell shows its own offer and no more are built than fit.
        auto checkVisibleCells = [&]() -> QString {
            const QList<QVOfferUICollectionViewCell *> cells = harness.cells();
            for (QVOfferUICollectionViewCell *cell : cells) {
                if (!seen.contains(cell))
                    built.append(cell);
                seen.insert(cell);
                const QString expected = QStringLiteral("Offer %1").arg(cell->row());
                const QString shown = cell->findChild<QQuickItem *>(QStringLiteral("nameLabel"))->property("text").toString();
                if (shown != expected)
                    return QStringLiteral("cell of %1 shows %2").arg(expected, shown);
            }
            // Besides the rows on screen the list keeps at most two: one laid out past an
            // edge, one waiting to be reused.
            if (cells.size() > (rowsOnScreen + 2) * perRow)
                return QStringLiteral("%1 cells for %2 rows").arg(cells.size()).arg(rowsOnScreen);
            return {};
        };
        while (harness.wall->offersList().size() < 90 || !harness.list()->property("atYEnd").toBool()) {
            harness.list()->setProperty("contentY", harness.list()->property("contentY").toReal() + rowHeight * 0.75);
            QVERIFY(harness.nextFrame());
            const QString problem = checkVisibleCells();
            QVERIFY2(problem.isEmpty(), qPrintable(problem));
        }
        QCOMPARE(harness.cells().last()->row(), 89);
        QVERIFY2(seen.size() <= (rowsOnScreen + 4) * perRow, qPrintable(QString::number(seen.size())));

        // The host deletes the wall and keeps its window.
        delete std::exchange(harness.wall, nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_VERIFY(std::all_of(built.cbegin(), built.cend(), [](const auto &cell) { return cell.isNull(); }));
    }

    void cellShowsOfferAndPayout()
    {
        m_service.setPayout(0);
        WallHarness harness;
        QVERIFY(harness.show());
        QTRY_VERIFY(!harness.cells().isEmpty());
        QVOfferUICollectionViewCell *first = harness.cells().first();
        QCOMPARE(first->findChild<QQuickItem *>(QStringLiteral("nameLabel"))->property("text").toString(), QStringLiteral("Offer 0"));
        QCOMPARE(first->findChild<QQuickItem *>(QStringLiteral("descriptionLabel"))->property("text").toString(), QStringLiteral("Do task 0"));
        QCOMPARE(first->findChild<QQuickItem *>(QStringLiteral("creditsBtn"))->property("text").toString(), QStringLiteral("+0"));
        auto *thumb = first->findChild<QVImageView *>(QStringLiteral("thumbImage"));
        QTRY_VERIFY(thumb->hasImage());
        auto *card = first->findChild<QQuickItem *>(QStringLiteral("containerView"));
        QCOMPARE(card->property("radius").toReal(), 6.0);
        QCOMPARE(harness.find(QStringLiteral("wallBackground"))->property("color").value<QColor>(), QColor(242, 242, 242));
    }

    void payoutPressOpensClickAddress()
    {
        BrowserProbe browser;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &browser, "open");
        const auto unset = qScopeGuard([] { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); });
        WallHarness harness;
        QSignalSpy opened(harness.wall, &QVOffersViewController::offerOpened);
        QSignalSpy shown(harness.wall, &QVOffersViewController::offersShown);
        // Swaps reach this thread as queued calls. Six of them are made to wait before the
        // first is handled, as on a loaded machine: the host still hears of its offers once.
        QQuickWindow *window = harness.window.get();
        bool swapsQueued = false;
        connect(harness.wall, &QVOffersViewController::offerCountChanged, window, [&] {
            if (swapsQueued || harness.wall->offerCount() == 0)
                return;
            swapsQueued = true;
            QMetaObject::invokeMethod(window, [window] {
                for (int i = 0; i < 6; ++i)
                    emit window->frameSwapped();
            }, Qt::QueuedConnection);
        });
        QVERIFY(harness.show());
        QTRY_VERIFY(harness.cells().size() > 2);
        QTRY_COMPARE(shown.count(), 1);
        QVERIFY(swapsQueued);
        QTRY_VERIFY(harness.cells()[2]->findChild<QQuickItem *>(QStringLiteral("creditsBtn"))->width() > 0);
        harness.click(harness.cells()[2]->findChild<QQuickItem *>(QStringLiteral("creditsBtn")));
        QTRY_COMPARE(browser.opened.size(), 1);
        QCOMPARE(browser.opened.first(), QUrl(QStringLiteral("https://advertiser.example/click?offer=2")));
        QCOMPARE(opened.count(), 1);
        const QVOffer offer = opened.first().at(0).value<QVOffer>();
        QCOMPARE(offer.offerName(), QStringLiteral("Offer 2"));
        QCOMPARE(offer.currencyCount(), QStringLiteral("1502"));

        // An address that is not valid opens nothing and tells nothing.
        harness.wall->onCreditsPressed(QStringLiteral("https://bad host/x"));
        harness.wall->onCreditsPressed(QString());
        QCOMPARE(browser.opened.size(), 1); // opening is synchronous: nothing more came
        QCOMPARE(opened.count(), 1);

        // Shown once per wall: a later page is not a first.
        harness.scrollToEnd();
        QTRY_COMPARE(harness.wall->offersList().size(), 60);
        QVERIFY(harness.nextFrame());
        QCOMPARE(shown.count(), 1);
    }

    void creditsShowAsOneNotice()
    {
        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Old:10")));
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        watcher.checkNow();
        QTRY_VERIFY(watcher.hasBaseline());

        WallHarness harness;
        harness.wall->setCreditsWatcher(&watcher);
        QCOMPARE(harness.wall->creditsWatcher(), &watcher);
        QVERIFY(harness.show());
        QTRY_COMPARE(harness.find(QStringLiteral("headerTitle"))->property("text").toString(), QStringLiteral("Earn Gems"));
        QQuickItem *notice = harness.find(QStringLiteral("creditNotice"));
        QVERIFY(notice);
        QVERIFY(!notice->isVisible());
        QSignalSpy changed(harness.wall, &QVOffersViewController::creditNoticeChanged);

        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Sky Quest:1500, Old:10")));
        watcher.checkNow();
        QTRY_VERIFY(harness.wall->creditNoticeShown());
        QCOMPARE(harness.wall->creditNoticeText(), QStringLiteral("+1,500 Gems"));
        QCOMPARE(harness.wall->creditNoticeDetail(), QStringLiteral("Sky Quest"));
        QTRY_VERIFY(notice->isVisible());
        // Read out as an alert.
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(notice);
        QVERIFY(spoken);
        QCOMPARE(spoken->role(), QAccessible::AlertMessage);
        QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("+1,500 Gems"));

        // Credits that come while it shows add up (the next poll is one round trip, far
        // inside the notice's four seconds); a reversal is not a credit.
        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Reversal:-40, Daily:250, Sky Quest:1500, Old:10")));
        watcher.checkNow();
        QTRY_COMPARE(harness.wall->creditNoticeText(), QStringLiteral("+1,750 Gems"));
        QCOMPARE(harness.wall->creditNoticeDetail(), QStringLiteral("Sky Quest, Daily"));
        QCOMPARE(changed.count(), 2);
        // It goes by itself.
        QTRY_VERIFY_WITH_TIMEOUT(!harness.wall->creditNoticeShown(), QVOffersViewController::kCreditNoticeMs + kPatienceMs);

        // A credit that comes while the phone support centre is open shows below the panel:
        // the centre's tabs are not covered.
        harness.wall->onSupportPressed();
        QTRY_VERIFY(harness.wall->supportVC() && !harness.wall->isOverlayAnimating());
        auto *tabs = harness.wall->supportVC()->findChild<QQuickItem *>(QStringLiteral("segmentedControl"));
        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Bonus:20, Reversal:-40, Daily:250, Sky Quest:1500, Old:10")));
        watcher.checkNow();
        QTRY_VERIFY(harness.wall->creditNoticeShown());
        QCOMPARE(harness.wall->creditNoticeText(), QStringLiteral("+20 Gems"));
        QVERIFY(harness.nextFrame());
        const QImage frame = harness.window->grabWindow();
        QVERIFY(notice->mapRectToScene(notice->boundingRect()).contains(tabs->mapToScene(QPointF(tabs->width() / 2, tabs->height() / 2))));
        QVERIFY(!drawnIn(frame, tabs->mapToScene(QPointF(tabs->width() / 2, tabs->height() / 2)), harness.wall->theme().payoutButton));
        harness.wall->onSupportPressed();
        QTRY_VERIFY(!harness.wall->isSupportViewOpen() && !harness.wall->isOverlayAnimating());

        // A wall off screen shows nothing.
        QTRY_VERIFY_WITH_TIMEOUT(!harness.wall->creditNoticeShown(), QVOffersViewController::kCreditNoticeMs + kPatienceMs);
        harness.wall->setVisible(false);
        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Hidden:5, Bonus:20, Reversal:-40, Daily:250, Sky Quest:1500, Old:10")));
        QSignalSpy credits(&watcher, &QVCreditsWatcher::creditsReceived);
        watcher.checkNow();
        QTRY_COMPARE(credits.count(), 1);
        QVERIFY(!harness.wall->creditNoticeShown());
    }

    void themeColoursTheWallWhileOpen()
    {
        WallHarness harness;
        QCOMPARE(harness.wall->theme(), QVTheme::light()); // the system's, here a light one
        harness.wall->setTheme(QVTheme::dark());
        QVERIFY(harness.show());
        QTRY_VERIFY(harness.cells().size() > 1);
        QQuickItem *card = harness.cells().first()->findChild<QQuickItem *>(QStringLiteral("containerView"));
        // Points on the header's leading edge, between two cells, and inside the first card.
        const QPointF headerPoint(2, 40);
        const QPointF backgroundPoint(harness.window->width() / 2.0, harness.wall->headerHeight() + 2);
        const QPointF cardPoint = card->mapToScene(QPointF(card->width() - 24, 10));
        auto frameShows = [&](const QVTheme &theme) {
            const QImage frame = harness.window->grabWindow();
            return drawnIn(frame, headerPoint, theme.headerStart) && drawnIn(frame, backgroundPoint, theme.background)
                && drawnIn(frame, cardPoint, theme.card);
        };
        QVERIFY(frameShows(QVTheme::dark()));

        QSignalSpy changed(harness.wall, &QVOffersViewController::themeChanged);
        const QVTheme brand = QVTheme::fromBrandColor(QColor(0xFF, 0xD4, 0x00));
        harness.wall->setTheme(brand);
        QCOMPARE(changed.count(), 1);
        QTRY_VERIFY(frameShows(brand));
        harness.wall->setTheme(brand);
        QCOMPARE(changed.count(), 1);

        // A wall the host gave no theme follows the system's switch to dark while it is open.
        WallHarness following;
        QSignalSpy followed(following.wall, &QVOffersViewController::themeChanged);
        const QPalette original = QGuiApplication::palette();
        const auto restore = qScopeGuard([&] { QGuiApplication::setPalette(original); });
        QPalette dark = original;
        dark.setColor(QPalette::Window, QColor(0x1C, 0x1C, 0x20));
        QGuiApplication::setPalette(dark);
        QTRY_COMPARE(following.wall->theme(), QVTheme::dark());
        QCOMPARE(followed.count(), 1);
        QCOMPARE(harness.wall->theme(), brand); // a theme the host set stays
    }

    void closeButtonTellsTheHost()
    {
        WallHarness harness;
        QVERIFY(harness.show());
        QSignalSpy closed(harness.wall, &QVOffersViewController::closePressed);
        QQuickItem *close = harness.find(QStringLiteral("closeBtn"));
        QTRY_VERIFY(close->isVisible());
        harness.click(close);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(harness.closePresses, 1);
        QVERIFY(harness.wall->isVisible()); // dismissing is the host's job
    }

    // A host that showed a wall and its pictures ends its program without Qt printing a
    // warning on the way out.
    void hostEndsWithoutWarnings()
    {
        QTemporaryDir runtime;
        QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcess host;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
        host.setProcessEnvironment(environment);
        host.start(QStringLiteral(QUORVA_HOST_LIFE_PROBE), QStringList());
        QVERIFY(host.waitForFinished(kPatienceMs * 2));
        QCOMPARE(host.exitStatus(), QProcess::NormalExit);
        QCOMPARE(host.exitCode(), 0);
        const QString printed = QString::fromLocal8Bit(host.readAllStandardError()).trimmed();
        QVERIFY2(printed.isEmpty(), qPrintable(printed));
    }
};

QTEST_MAIN(tst_QVOffersViewController)
#include "tst_QVOffersViewController.moc"
