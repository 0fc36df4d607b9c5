// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVImageView.h"
#include "ServiceSuite.h"
#include "QVLanguage.h"
#include "SupportHarness.h"

#include <QtCore/QTranslator>
#include <QtGui/QAccessible>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlIncubationController>
#include <QtQuick/QQuickItem>

namespace {
QString textOf(QQuickItem *item)
{
    return item ? item->property("text").toString() : QStringLiteral("(missing)");
}

// Every text the library shows, 40 % longer and in brackets, so a test can see what
// would not fit.
class PseudoTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (!context || (qstrncmp(context, "QV", 2) != 0 && qstrcmp(context, "TicketFormCheck") != 0
                         && qstrcmp(context, "FormTextField") != 0))
            return {};
        const QString text = QString::fromUtf8(source);
        QString padding;
        const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (qsizetype i = 0; padding.size() < text.size() * 2 / 5 && !words.isEmpty(); ++i)
            padding += QLatin1Char(' ') + QString(words[i % words.size()]).remove(QLatin1Char('%'));
        return QLatin1Char('[') + text + padding + QLatin1Char(']');
    }
};

// A control a screen reader can name and place: by itself, or by the box around it.
bool spokenFor(QQuickItem *item)
{
    QAccessibleInterface *accessible = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    return accessible && !accessible->text(QAccessible::Name).trimmed().isEmpty()
        && accessible->role() != QAccessible::NoRole && accessible->role() != QAccessible::Client;
}

// What a user cannot read on the screen: texts that are cut (elided, wider or taller than
// their box, outside the window, or below the edge of a box that clips them), but for
// offer names and descriptions, which may end in an ellipsis; on a mirrored screen, texts
// that start at the left edge of a wider box (whatever its script, a text starts at the
// reading start); and controls a screen reader cannot name or a finger can hardly hit.
QStringList badTexts(QQuickWindow *window, bool mirrored)
{
    const QStringList mayElide{QStringLiteral("nameLabel"), QStringLiteral("descriptionLabel"),
                               QStringLiteral("offernameLabel")};
    QStringList bad;
    for (QQuickItem *item : WallHarness::itemsBelow(window->contentItem())) {
        const bool control = item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit") || item->activeFocusOnTab();
        if (control && item->isVisible() && item->opacity() > 0 && !spokenFor(item) && !spokenFor(item->parentItem()))
            bad.append(QStringLiteral("no accessible name or role: %1 %2")
                           .arg(QLatin1String(item->metaObject()->className()), item->objectName()));
        if (control && item->isVisible() && item->opacity() > 0 && (item->width() < 44 || item->height() < 44))
            bad.append(QStringLiteral("smaller than a finger: %1 %2 (%3 x %4)")
                           .arg(QLatin1String(item->metaObject()->className()), item->objectName())
                           .arg(item->width())
                           .arg(item->height()));
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit");
        if (!isText || !item->isVisible() || item->opacity() == 0 || textOf(item).isEmpty())
            continue;
        const QRectF inWindow = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
        const qreal contentWidth = item->property("contentWidth").toReal();
        bool cut = item->property("truncated").toBool() || contentWidth > item->width() + 1
            || item->property("contentHeight").toReal() > item->height() + 1
            || inWindow.left() < -1 || inWindow.right() > window->width() + 1;
        // What a list or a scroll view holds can be scrolled into its view, which itself
        // must be in sight.
        QRectF shown = inWindow;
        for (QQuickItem *box = item->parentItem(); box && !cut; box = box->parentItem()) {
            const QRectF boxInWindow = box->mapRectToScene(box->boundingRect());
            if (box->inherits("QQuickFlickable"))
                shown = boxInWindow;
            else if (box->clip())
                cut = !boxInWindow.adjusted(-1, -1, 1, 1).contains(shown);
        }
        if (cut && !mayElide.contains(item->objectName())) {
            QString boxes;
            for (QQuickItem *box = item; box; box = box->parentItem())
                boxes += QStringLiteral(" < %1 %2").arg(QLatin1String(box->metaObject()->className())).arg(box->width());
            bad.append(QStringLiteral("cut: %1 (%2 wide at %3,%4 in a box %5 wide%6)")
                           .arg(textOf(item))
                           .arg(contentWidth)
                           .arg(inWindow.left())
                           .arg(inWindow.top())
                           .arg(item->width())
                           .arg(boxes));
        }
        if (mirrored && contentWidth < item->width() - 1
            && item->property("effectiveHorizontalAlignment").toInt() == Qt::AlignLeft)
            bad.append(QStringLiteral("starts left: ") + textOf(item));
    }
    return bad;
}
} // namespace

// A list places a delegate that is still being built in its row before the delegate's own
// layout is done (it is not drawn until then), so the check waits for every delegate under
// way to be finished and drawn.
#define VERIFY_TEXTS_READ_WELL(harness)                                                                    \
    do {                                                                                                   \
        QTRY_COMPARE(qmlEngine((harness).wall)->incubationController()->incubatingObjectCount(), 0);        \
        QVERIFY((harness).nextFrame());                                                                    \
        const QStringList bad = badTexts((harness).window.get(), (harness).wall->isRightToLeft());         \
        QVERIFY2(bad.isEmpty(), qPrintable(bad.join(QStringLiteral(" | "))));                              \
    } while (false)

class tst_QVLanguage : public ServiceSuite
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        finishPendingRequests();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void germanOnTheWallThePanelAndTheForm()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        SupportHarness harness;
        QVERIFY(harness.show());
        QTRY_COMPARE(textOf(harness.find(QStringLiteral("headerTitle"))), QStringLiteral("Gems verdienen"));
        QCOMPARE(harness.find(QStringLiteral("closeBtn"))->property("accessibleName").toString(),
                 QStringLiteral("Angebote schließen"));

        harness.wall->onFilterPressed();
        QTRY_VERIFY(harness.wall->filterVC() && !harness.wall->isOverlayAnimating());
        QCOMPARE(textOf(harness.find(QStringLiteral("headerTitle"))), QStringLiteral("Sortieren/Filtern"));
        QCOMPARE(harness.wall->filterVC()->titleForSection(0), QStringLiteral("Sortieren nach"));
        QCOMPARE(harness.wall->filterVC()->titleForRow(0, 0), QStringLiteral("Beliebtheit"));
        harness.wall->headerTapped();
        QTRY_VERIFY(!harness.wall->isFiltersViewOpen() && !harness.wall->isOverlayAnimating());

        QVEmailViewController *form = harness.openForm();
        QVERIFY(form);
        QCOMPARE(textOf(form->chooseSubjectView()->notCreditBtn()),
                 QStringLiteral("Ich habe ein Angebot abgeschlossen, aber keine Gutschrift erhalten"));
        harness.clickInForm(form, form->chooseSubjectView()->reportBtn());
        QTRY_VERIFY(form->sendButtonView());
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QTRY_VERIFY(harness.wall->supportVC()->errorLabel()->isVisible());
        QCOMPARE(textOf(harness.wall->supportVC()->errorLabel()), QStringLiteral("Bitte gib einen gültigen Namen ein"));
        QCOMPARE(quorva::detail::libraryLocale().language(), QLocale::German);
    }

    void textsAndQuestionsInTheLanguageOrEnglish_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("firstQuestion");
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom) << "Earn Gems"
                                 << "How do I earn rewards?";
        QTest::newRow("Italian: no translation, no list of its own") << QLocale(QLocale::Italian, QLocale::Italy)
                                                                    << "Earn Gems" << "How do I earn rewards?";
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Austria) << "Gems verdienen"
                                << "Wie verdiene ich Belohnungen?";
        QTest::newRow("Brazilian Portuguese") << QLocale(QLocale::Portuguese, QLocale::Brazil) << "Ganhe Gems"
                                              << "Como ganho recompensas?";
    }

    void textsAndQuestionsInTheLanguageOrEnglish()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, title);
        QFETCH(QString, firstQuestion);
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        { WallHarness other; } // a wall in another language first: its language must not linger
        QLocale::setDefault(locale);
        SupportHarness harness;
        QVERIFY(harness.show());
        QTRY_COMPARE(textOf(harness.find(QStringLiteral("headerTitle"))), title);
        QVERIFY(!harness.wall->isRightToLeft());
        QVSupportViewController *support = harness.openSupport();
        QVERIFY(support);
        QTRY_VERIFY(support->faqViewController()->model()->rowCount() > 0);
        QCOMPARE(support->faqViewController()->model()->data(support->faqViewController()->model()->index(0, 0)).toString(),
                 firstQuestion);
    }

    void arabicMirrorsTheHeaderAndTheCells()
    {
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        WallHarness harness;
        QVERIFY(harness.wall->isRightToLeft());
        QVERIFY(harness.show());
        QTRY_VERIFY(!harness.cells().isEmpty());
        auto centreX = [](QQuickItem *item) { return item->mapToScene(QPointF(item->width() / 2, 0)).x(); };
        const qreal middle = harness.window->width() / 2.0;
        QVERIFY(centreX(harness.find(QStringLiteral("closeBtn"))) > middle);
        QVERIFY(centreX(harness.find(QStringLiteral("filterBtn"))) < middle);
        QVERIFY(centreX(harness.find(QStringLiteral("supportBtn"))) < middle);
        QVOfferUICollectionViewCell *cell = harness.cells().first();
        QVERIFY(centreX(cell->creditsBtn()) < centreX(cell->property("nameLabel").value<QQuickItem *>()));
        QVERIFY(centreX(cell->property("nameLabel").value<QQuickItem *>()) < centreX(cell->thumbImage()));
        QVERIFY(textOf(harness.find(QStringLiteral("headerTitle"))).startsWith(QStringLiteral("اربح")));
    }

    // A host's text size reaches walls already open: rows grow, the payout button moves
    // under the texts, and a value out of range is brought into it.
    void textScaleReachesOpenWalls()
    {
        SupportHarness harness;
        QVERIFY(harness.show());
        QTRY_VERIFY(!harness.cells().isEmpty());
        QVOfferUICollectionViewCell *cell = harness.cells().first();
        auto *name = cell->property("nameLabel").value<QQuickItem *>();
        const qreal rowHeight = cell->height();
        const int namePixels = name->property("font").value<QFont>().pixelSize();
        QVERIFY(!cell->property("payoutBelowText").toBool());
        QSignalSpy changed(QVDevice::instance(), &QVDevice::textScaleChanged);
        const auto reset = qScopeGuard([] { QVDevice::setTextScale(1.0); });

        QVDevice::setTextScale(3.5);
        QCOMPARE(QVDevice::textScale(), QVDevice::kMaximumTextScale);
        QVDevice::setTextScale(qQNaN());
        QVDevice::setTextScale(QVDevice::kMaximumTextScale);
        QCOMPARE(changed.count(), 1);
        QTRY_COMPARE(name->property("font").value<QFont>().pixelSize(), 2 * namePixels);
        QTRY_VERIFY(cell->height() > rowHeight + QVOfferUICollectionViewCell::kPayoutRowHeight);
        QVERIFY(cell->property("payoutBelowText").toBool());
        QVERIFY(cell->creditsBtn()->mapToItem(cell, QPointF()).y()
                > name->mapToItem(cell, QPointF(0, name->height())).y());

        QVDevice::setTextScale(0.5);
        QCOMPARE(QVDevice::textScale(), QVDevice::kMinimumTextScale);
        QTRY_COMPARE(cell->height(), rowHeight);
    }

    // The pseudo-language, then every real one.
    void pseudoLanguageClipsNothing_data()
    {
        QTest::addColumn<bool>("tablet");
        QTest::addColumn<QString>("language");
        QTest::addColumn<qreal>("textScale");
        for (const char *language : {"pseudo", "de_DE", "es_ES", "fr_FR", "pt_BR", "ar_EG"}) {
            QTest::addRow("%s, phone", language) << false << QString::fromLatin1(language) << 1.0;
            QTest::addRow("%s, tablet", language) << true << QString::fromLatin1(language) << 1.0;
        }
        // The largest text, in the shortest language and the longest.
        for (const char *language : {"en_US", "de_DE"}) {
            QTest::addRow("%s, phone, largest text", language) << false << QString::fromLatin1(language) << 2.0;
            QTest::addRow("%s, tablet, largest text", language) << true << QString::fromLatin1(language) << 2.0;
        }
    }

    void pseudoLanguageClipsNothing()
    {
        QFETCH(bool, tablet);
        QFETCH(QString, language);
        QFETCH(qreal, textScale);
        QVDevice::setUserInterfaceIdiom(tablet ? QVDevice::Idiom::Tablet : QVDevice::Idiom::Phone);
        QVDevice::setTextScale(textScale);
        PseudoTranslator pseudo;
        if (language == QLatin1String("pseudo"))
            QCoreApplication::installTranslator(&pseudo);
        else
            QLocale::setDefault(QLocale(language));
        const auto remove = qScopeGuard([&] {
            QCoreApplication::removeTranslator(&pseudo);
            QVDevice::setTextScale(1.0);
        });
        const QSize size = tablet ? QSize(1024, 768) : QSize(390, 780);
        const auto closeAlert = [](QQuickItem *owner) {
            const auto alerts = owner->findChildren<QObject *>(QStringLiteral("alert"));
            QVERIFY(!alerts.isEmpty());
            QTRY_VERIFY(alerts.last()->property("opened").toBool());
            QMetaObject::invokeMethod(alerts.last(), "close");
            QTRY_VERIFY(owner->findChildren<QObject *>(QStringLiteral("alert")).size() < alerts.size());
        };

        // The wall: failed with its alert, empty, with offers and a credit notice, and the
        // filter panel.
        m_service.setHistory(200, R"({"transactions":[]})");
        QVCreditsWatcher watcher(QStringLiteral("1042"), QStringLiteral("7"), QStringLiteral("user-1"));
        watcher.checkNow();
        m_service.setDropped(FakeOfferService::Offers, true);
        // Log lines stay English in every language: a translated one would not match.
        QTest::ignoreMessage(QtInfoMsg, "offers request failed");
        SupportHarness harness(size);
        harness.wall->setCreditsWatcher(&watcher);
        QVERIFY(harness.show());
        QTRY_VERIFY(harness.wall->loadFailed());
        QTRY_VERIFY(harness.alert() && harness.alert()->property("opened").toBool());
        VERIFY_TEXTS_READ_WELL(harness);
        closeAlert(harness.wall);
        m_service.setDropped(FakeOfferService::Offers, false);
        m_service.setTotalOffers(0);
        harness.wall->onRetryPressed();
        QTRY_VERIFY(harness.find(QStringLiteral("noOffersLabel"))->isVisible());
        VERIFY_TEXTS_READ_WELL(harness);
        m_service.setTotalOffers(95);
        harness.wall->onRetryPressed();
        QTRY_VERIFY(harness.wall->offerCount() > 0);
        QTRY_VERIFY(watcher.hasBaseline());
        m_service.setHistory(200, FakeOfferService::historyOf(QStringLiteral("Sky Quest:1500")));
        watcher.checkNow();
        QTRY_VERIFY(harness.wall->creditNoticeShown());
        VERIFY_TEXTS_READ_WELL(harness);
        harness.wall->onFilterPressed();
        QTRY_VERIFY(harness.wall->filterVC() && !harness.wall->isOverlayAnimating());
        VERIFY_TEXTS_READ_WELL(harness);

        // Every tab of the support centre, and the form in each of its states.
        SupportHarness supportHarness(size);
        QVSupportViewController *support = supportHarness.openSupport();
        QVERIFY(support);
        VERIFY_TEXTS_READ_WELL(supportHarness);
        SupportHarness::showTab(support, QVSupportViewController::HistoryTab);
        QTRY_VERIFY(!WallHarness::listRows<QVTransactionCollectionViewCell>(support->historyViewController()).isEmpty());
        VERIFY_TEXTS_READ_WELL(supportHarness);
        SupportHarness::showTab(support, QVSupportViewController::FormTab);
        QVEmailViewController *form = support->emailViewController();
        VERIFY_TEXTS_READ_WELL(supportHarness);
        QVChooseSubjectView *subject = form->chooseSubjectView();
        QVOfferTimeCompletedView *time = form->offerTimeCompleted();
        // Each choice and the form's state after it: not credited, not completed, completed, report.
        const std::pair<QQuickItem *, int> choices[]{
            {subject->notCreditBtn(), 1}, {time->noButton(), 3}, {time->yesButton(), 2}, {subject->reportBtn(), 4}};
        for (const auto &[choice, state] : choices) {
            supportHarness.clickInForm(form, choice);
            QTRY_COMPARE(form->activeUISate(), state);
            VERIFY_TEXTS_READ_WELL(supportHarness);
            // The notice in the send piece's place, at its height, however its texts wrap.
            if (choice == time->noButton())
                QTRY_COMPARE(form->unableToAssistView()->height(), form->sendButtonView()->height());
        }
        // Invalid, with the error strip; the date picker; sent, and its failure alert.
        supportHarness.clickInForm(form, subject->notCreditBtn());
        supportHarness.clickInForm(form, time->yesButton());
        supportHarness.clickInForm(form, form->sendButtonView()->sendBtn());
        QTRY_VERIFY(support->errorLabel()->isVisible());
        VERIFY_TEXTS_READ_WELL(supportHarness);
        form->dateInputFieldPressed();
        QTRY_COMPARE(form->datePickerView()->opacity(), 1.0);
        VERIFY_TEXTS_READ_WELL(supportHarness);
        form->onDateDonePressed();
        QTRY_VERIFY(!form->datePickerView()->isVisible());
        supportHarness.clickInForm(form, subject->otherBtn());
        QCOMPARE(form->activeUISate(), 5);
        form->enterInfoView()->nameTextField()->setProperty("text", QStringLiteral("Ann"));
        form->enterInfoView()->emailTextField()->setProperty("text", QStringLiteral("ann@example.com"));
        form->enterCommentView()->commentInputField()->setProperty("text", QStringLiteral("Hello"));
        supportHarness.clickInForm(form, form->sendButtonView()->sendBtn());
        QTRY_VERIFY(form->findChild<QObject *>(QStringLiteral("alert")));
        VERIFY_TEXTS_READ_WELL(supportHarness);
        closeAlert(form);
        form->showFailureAlert();
        VERIFY_TEXTS_READ_WELL(supportHarness);
    }
};

QTEST_MAIN(tst_QVLanguage)
#include "tst_QVLanguage.moc"
