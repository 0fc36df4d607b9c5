// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"
#include "SupportHarness.h"
#include "QVNotificationCenter.h"
#include "TicketFormCheck.h"

#include <QtCore/QJsonObject>
#include <QtGui/QAccessible>

namespace {
QString text(QQuickItem *input)
{
    return input->property("text").toString();
}

bool inForm(QVEmailViewController *form, QQuickItem *piece)
{
    return piece->parentItem() == form->contentView();
}

// Wholly inside the form's scroll view as it is drawn now.
bool inView(QVEmailViewController *form, QQuickItem *item)
{
    QQuickItem *scroll = form->scrollView();
    return QRectF(QPointF(), scroll->size()).contains(item->mapRectToItem(scroll, item->boundingRect()));
}

bool checked(QQuickItem *chooser, const char *checkmark)
{
    return chooser->findChild<QQuickItem *>(QLatin1StringView(checkmark))->isVisible();
}

QObject *alertOf(QQuickItem *item)
{
    const auto alerts = item->findChildren<QObject *>(QStringLiteral("alert"));
    return alerts.isEmpty() ? nullptr : alerts.last();
}
} // namespace

class tst_QVEmailViewController : public ServiceSuite
{
    Q_OBJECT

private slots:
    void statesFollowTheChoosers()
    {
        SupportHarness harness;
        QVEmailViewController *form = harness.openForm();
        QVERIFY(form);
        // Start: name and e-mail, then the subject; the send button is there but hidden.
        QCOMPARE(form->activeUISate(), 0);
        QVERIFY(inForm(form, form->enterInfoView()) && inForm(form, form->chooseSubjectView()));
        QVERIFY(inForm(form, form->sendButtonView()));
        QVERIFY(!form->sendButtonView()->isVisible());
        QVERIFY(!inForm(form, form->offerTimeCompleted()) && !inForm(form, form->enterCommentView()));
        QCOMPARE(form->chooseSubjectView()->y(), form->enterInfoView()->height());

        QVChooseSubjectView *subject = form->chooseSubjectView();
        QVOfferTimeCompletedView *answer = form->offerTimeCompleted();
        harness.clickInForm(form, subject->notCreditBtn());
        QCOMPARE(form->activeUISate(), 1);
        QCOMPARE(form->selectedSubjectId(), QStringLiteral("1"));
        QCOMPARE(answer->y(), subject->y() + subject->height());
        QVERIFY(!form->sendButtonView()->isVisible());

        harness.clickInForm(form, answer->yesButton());
        QCOMPARE(form->activeUISate(), 2);
        const QList<QQuickItem *> stack{form->offerDateCompletedView(), form->enterOfferTitleView(),
                                        form->enterCommentView(), form->sendButtonView()};
        QQuickItem *above = answer;
        for (QQuickItem *piece : stack) {
            QVERIFY(inForm(form, piece));
            QCOMPARE(piece->y(), above->y() + above->height());
            above = piece;
        }
        QVERIFY(form->sendButtonView()->isVisible());
        form->enterOfferTitleView()->offerNameField()->setProperty("text", QStringLiteral("Dragon Realms"));
        form->enterCommentView()->commentInputField()->setProperty("text", QStringLiteral("Never arrived"));

        // A tap on the chosen subject changes nothing: no callback, no state change.
        harness.clickInForm(form, subject->notCreditBtn());
        QCOMPARE(form->activeUISate(), 2);

        harness.clickInForm(form, subject->reportBtn());
        QCOMPARE(form->activeUISate(), 4);
        QCOMPARE(form->selectedSubjectId(), QStringLiteral("2"));
        QVERIFY(checked(subject, "reportCheckmark") && !checked(subject, "notCreditCheckmark"));
        QVERIFY(!inForm(form, answer) && !inForm(form, form->offerDateCompletedView()));
        QVERIFY(!inForm(form, form->enterOfferTitleView()));
        QCOMPARE(form->enterCommentView()->y(), subject->y() + subject->height());
        QCOMPARE(form->sendButtonView()->y(), form->enterCommentView()->y() + form->enterCommentView()->height());
        QCOMPARE(text(form->enterCommentView()->commentInputField()), QStringLiteral("Never arrived"));
        QCOMPARE(text(form->enterOfferTitleView()->offerNameField()), QStringLiteral("Dragon Realms"));

        // Back to not credited: the question again, unanswered; the comment leaves.
        harness.clickInForm(form, subject->notCreditBtn());
        QCOMPARE(form->activeUISate(), 1);
        QVERIFY(inForm(form, answer));
        QVERIFY(!checked(answer, "yesCheckmark") && !checked(answer, "noCheckmark"));
        QVERIFY(!inForm(form, form->enterCommentView()));
        QVERIFY(!form->sendButtonView()->isVisible());

        harness.clickInForm(form, answer->noButton());
        QCOMPARE(form->activeUISate(), 3);
        QVUnableToAssist *notice = form->unableToAssistView();
        QVERIFY(inForm(form, notice));
        QCOMPARE(notice->y(), answer->y() + answer->height());
        // The send piece's height, which grows to what the notice's texts need (glyph widths
        // differ between platforms), once they are laid out at the form's final width (a
        // first launch may lay them out at a passing width first): the form ends at the
        // same line whichever answer was given.
        QTRY_COMPARE(notice->height(), std::max(notice->implicitHeight(), 76.0));
        QCOMPARE(form->sendButtonView()->height(), notice->height());
        QVERIFY(!form->sendButtonView()->isVisible());
        QVERIFY(!inForm(form, form->offerDateCompletedView()) && !inForm(form, form->enterCommentView()));
    }

    void validationOrder_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QStringList>("fields"); // name, e-mail, offer name, comment
        QTest::addColumn<bool>("withDate");
        QTest::addColumn<QString>("message");   // empty: the ticket goes out
        QTest::addColumn<QString>("marked");    // the one piece whose icon shows its error
        QTest::newRow("blank name, everything else blank") << 4 << QStringList{"   ", "", "", ""} << false
                                                           << "Please enter a valid name" << "name";
        QTest::newRow("no e-mail") << 4 << QStringList{"Ann", "\t ", "", "x"} << false << "Please enter a valid email" << "email";
        QTest::newRow("malformed e-mail") << 5 << QStringList{"Ann", "ann@example", "", "x"} << false
                                          << "Please enter a valid email" << "email";
        QTest::newRow("state 2 without offer name") << 2 << QStringList{"Ann", "ann@example.com", " ", ""} << true
                                                    << "Please enter a valid offer name" << "offer";
        QTest::newRow("state 2 without a date") << 2 << QStringList{"Ann", "ann@example.com", "Dragon", ""} << false
                                                << "Please enter a date" << "date";
        QTest::newRow("state 2 without comment") << 2 << QStringList{"Ann", "ann@example.com", "Dragon", " \t"} << true
                                                 << "Please provide additional comments" << "comment";
        QTest::newRow("states 4 and 5 skip offer name and date") << 4 << QStringList{"Ann", "ann@example.com", "", ""}
                                                                  << false << "Please provide additional comments" << "comment";
        QTest::newRow("a comment of line breaks passes") << 5 << QStringList{"Ann", "ann@example.com", "", "\n\n"} << false
                                                         << QString() << QString();
    }

    void validationOrder()
    {
        QFETCH(int, state);
        QFETCH(QStringList, fields);
        QFETCH(bool, withDate);
        QFETCH(QString, message);
        QFETCH(QString, marked);
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, state);
        QVERIFY(form);
        form->enterInfoView()->nameTextField()->setProperty("text", fields[0]);
        form->enterInfoView()->emailTextField()->setProperty("text", fields[1]);
        form->enterOfferTitleView()->offerNameField()->setProperty("text", fields[2]);
        form->enterCommentView()->commentInputField()->setProperty("text", fields[3]);
        if (withDate) {
            form->dateInputFieldPressed();
            form->onDateDonePressed();
        }
        harness.clickInForm(form, form->sendButtonView()->sendBtn());

        QQuickItem *strip = harness.wall->supportVC()->errorLabel();
        if (message.isEmpty()) {
            QTRY_COMPARE(m_service.tickets().size(), 1);
            QVERIFY(!strip->isVisible());
            return;
        }
        QVERIFY(strip->isVisible());
        QCOMPARE(strip->property("text").toString(), message);
        // One field is marked, no other.
        const QMap<QString, bool> errors{
            {"name", form->enterInfoView()->nameIconName() == QLatin1String("name_field_error")},
            {"email", form->enterInfoView()->emailIconName() == QLatin1String("email_field_error")},
            {"offer", form->enterOfferTitleView()->nameIconName() == QLatin1String("title_field_error")},
            {"date", form->offerDateCompletedView()->dateIconName() == QLatin1String("date_field_error")},
            {"comment", form->enterCommentView()->commentIconName() == QLatin1String("comment_field_error")},
        };
        for (auto it = errors.cbegin(); it != errors.cend(); ++it)
            QCOMPARE(it.value(), it.key() == marked);
        QCOMPARE(m_service.tickets().size(), 0);
        // The form keeps what it shows below the strip.
        QCOMPARE(form->topInset(), strip->height());
        // The keyboard is in the marked field, and its whole piece, label too, is scrolled
        // into view below the strip.
        const QMap<QString, QQuickItem *> pieces{
            {"name", form->enterInfoView()}, {"email", form->enterInfoView()}, {"offer", form->enterOfferTitleView()},
            {"date", form->offerDateCompletedView()}, {"comment", form->enterCommentView()}};
        QQuickItem *piece = pieces.value(marked);
        QVERIFY(piece);
        QTRY_VERIFY(piece->isAncestorOf(form->window()->activeFocusItem()));
        const auto contentY = [form] { return form->scrollView()->property("contentY").toReal(); };
        QTRY_VERIFY2(piece->y() >= contentY() + form->topInset() - 0.5
                         && piece->y() + piece->height() <= contentY() + form->scrollView()->height() + 0.5,
                     qPrintable(QStringLiteral("piece at %1, shown from %2").arg(piece->y()).arg(contentY() + form->topInset())));
    }

    void emailPattern_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("valid");
        QTest::newRow("two letters") << "ann@example.de" << true;
        QTest::newRow("three letters") << "ann@example.com" << true;
        QTest::newRow("four letters") << "a.b-c+d%e_f@mail.example.info" << true;
        QTest::newRow("one letter") << "ann@example.c" << false;
        QTest::newRow("five letters") << "ann@example.comma" << false;
        QTest::newRow("no dot after @") << "ann@localhost" << false;
        QTest::newRow("digit in the last part") << "ann@example.c0m" << false;
        QTest::newRow("two @") << "ann@bob@example.com" << false;
        QTest::newRow("space inside") << "ann smith@example.com" << false;
        QTest::newRow("upper case ending") << "ANN@EXAMPLE.COM" << true;
        QTest::newRow("nothing before @") << "@example.com" << false;
    }

    void emailPattern()
    {
        QFETCH(QString, address);
        QFETCH(bool, valid);
        QCOMPARE(quorva::detail::isEmailAddress(address), valid);
    }

    void commentLimit_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("replaced");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("up to the limit") << 199 << 0 << "a" << true;
        QTest::newRow("one past the limit") << 200 << 0 << "a" << false;
        QTest::newRow("a line break past the limit") << 200 << 0 << "\n" << true;
        QTest::newRow("paste over a selection within the limit") << 180 << 100 << QString(110, u'x') << true;
        QTest::newRow("paste over a selection past the limit") << 180 << 100 << QString(150, u'x') << false;
        QTest::newRow("the same paste with a line break") << 180 << 100 << QString(149, u'x') + u'\n' << true;
        QTest::newRow("past the limit even deleting is refused until under it") << 250 << 10 << QString() << false;
        QTest::newRow("a deletion that ends under the limit") << 201 << 1 << QString() << true;
    }

    void commentLimit()
    {
        QFETCH(int, length);
        QFETCH(int, replaced);
        QFETCH(QString, replacement);
        QFETCH(bool, allowed);
        QCOMPARE(QVEnterCommentView::allowsChange(quint64(length), quint64(replaced), replacement), allowed);
    }

    void commentCounterWrapsPastTheLimit()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 5);
        QVERIFY(form);
        QVEnterCommentView *comment = form->enterCommentView();
        QQuickItem *input = comment->commentInputField();
        QQuickItem *counter = comment->findChild<QQuickItem *>(QStringLiteral("charCount"));
        harness.clickInForm(form, input);
        harness.type(input, QString(199, u'a'));
        QCOMPARE(counter->property("text").toString(), QStringLiteral("1"));
        harness.type(input, QStringLiteral("bc")); // the second character is refused
        QCOMPARE(text(input).size(), 200);
        QCOMPARE(counter->property("text").toString(), QStringLiteral("0"));
        QVERIFY(!text(input).endsWith(u'c'));
        QTest::keyClick(harness.window.get(), Qt::Key_Return); // a line break always goes in
        QCOMPARE(text(input).size(), 201);
        QCOMPARE(counter->property("text").toString(), QStringLiteral("18446744073709551615"));
        QTest::keyClick(harness.window.get(), Qt::Key_Backspace);
        QCOMPARE(counter->property("text").toString(), QStringLiteral("0"));
    }

    void errorLooksComeBackOnTheFirstEdit()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 4);
        QVERIFY(form);
        QVEnterInformationView *info = form->enterInfoView();
        QQuickItem *strip = harness.wall->supportVC()->errorLabel();
        info->nameTextField()->setProperty("text", QStringLiteral("Ann"));
        info->emailTextField()->setProperty("text", QStringLiteral("ann@"));
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QVERIFY(strip->isVisible());
        QCOMPARE(info->emailIconName(), QStringLiteral("email_field_error"));
        QCOMPARE(info->emailTextColor(), QColor(0xA5, 0x38, 0x38));
        QCOMPARE(info->emailTextField()->property("color").value<QColor>(), QColor(0xA5, 0x38, 0x38));
        QCOMPARE(info->findChild<QQuickItem *>(QStringLiteral("emailIcon"))->property("source").toString()
                     .endsWith(QStringLiteral("email_field_error")), true);

        // The first keystroke restores the field and hides the strip.
        QSignalSpy hidden(QVNotificationCenter::defaultCenter(), &QVNotificationCenter::hideErrorMessage);
        harness.type(info->emailTextField(), QStringLiteral("x"));
        QCOMPARE(hidden.count(), 1);
        QCOMPARE(hidden.first().first().value<QObject *>(), info);
        QVERIFY(!strip->isVisible());
        QCOMPARE(info->emailIconName(), QStringLiteral("email_field_icon"));
        QCOMPARE(info->emailTextColor(), QColor(Qt::black));
        QCOMPARE(info->emailTextField()->property("color").value<QColor>(), QColor(Qt::black));
        harness.type(info->emailTextField(), QStringLiteral("y"));
        QCOMPARE(hidden.count(), 1); // restored once, not on every keystroke

        // One flag per view: a name error is not undone by editing the e-mail field, and
        // after that not by editing the name either.
        info->nameTextField()->setProperty("text", QString());
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QCOMPARE(info->nameIconName(), QStringLiteral("name_field_error"));
        harness.type(info->emailTextField(), QStringLiteral("z"));
        QVERIFY(!strip->isVisible());
        QCOMPARE(info->nameIconName(), QStringLiteral("name_field_error"));
        harness.type(info->nameTextField(), QStringLiteral("A"));
        QCOMPARE(info->nameIconName(), QStringLiteral("name_field_error"));

        // Clearing a field counts as an edit.
        info->nameTextField()->setProperty("text", QStringLiteral("Ann"));
        info->emailTextField()->setProperty("text", QStringLiteral("ann@example"));
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QCOMPARE(info->emailIconName(), QStringLiteral("email_field_error"));
        QVERIFY(strip->isVisible());
        harness.clickInForm(form, info->emailTextField());
        QQuickItem *clear = info->emailTextField()->findChild<QQuickItem *>(QStringLiteral("clearButton"));
        QTRY_VERIFY2(clear->isVisible(), qPrintable(QStringLiteral("window active %1, focus in %2")
                                                        .arg(harness.window->isActive())
                                                        .arg(harness.window->activeFocusItem()
                                                                 ? harness.window->activeFocusItem()->objectName()
                                                                 : QStringLiteral("nothing"))));
        harness.click(clear);
        QCOMPARE(text(info->emailTextField()), QString());
        QCOMPARE(info->emailIconName(), QStringLiteral("email_field_icon"));
        QVERIFY(!strip->isVisible());
    }

    void sendingCarriesTheStatesFields_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("subject");
        QTest::newRow("not credited, completed") << 2 << "1";
        QTest::newRow("report") << 4 << "2";
        QTest::newRow("other") << 5 << "3";
    }

    void sendingCarriesTheStatesFields()
    {
        QFETCH(int, state);
        QFETCH(QString, subject);
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, state);
        QVERIFY(form);
        form->enterInfoView()->nameTextField()->setProperty("text", QStringLiteral("Ann Example"));
        // Typed with blanks around it: it passes and goes out as typed.
        form->enterInfoView()->emailTextField()->setProperty("text", QStringLiteral(" ann@example.com "));
        form->enterOfferTitleView()->offerNameField()->setProperty("text", QStringLiteral("Dragon Realms"));
        form->enterCommentView()->commentInputField()->setProperty("text", QStringLiteral("It never came"));
        if (state == 2) {
            form->dateInputFieldPressed();
            form->uiDatePicker()->setProperty("date", QDate(2016, 3, 7));
            form->onDateDonePressed();
        }
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QTRY_VERIFY(alertOf(form));
        QObject *alert = alertOf(form);
        QCOMPARE(alert->property("title").toString(), QStringLiteral("Message Sent"));
        QCOMPARE(alert->property("message").toString(), QStringLiteral("We will review your inquiry and respond shortly."));

        QCOMPARE(m_service.tickets().size(), 1);
        const QJsonObject ticket = m_service.tickets().first();
        QCOMPARE(ticket.value("name").toString(), QStringLiteral("Ann Example"));
        QCOMPARE(ticket.value("email").toString(), QStringLiteral(" ann@example.com "));
        QCOMPARE(ticket.value("subject_id").toString(), subject);
        QCOMPARE(ticket.value("message").toString(), QStringLiteral("It never came"));
        QCOMPARE(ticket.contains("offer_name"), state == 2);
        QCOMPARE(ticket.contains("completed_at"), state == 2);
        if (state == 2) {
            QCOMPARE(ticket.value("offer_name").toString(), QStringLiteral("Dragon Realms"));
            QCOMPARE(ticket.value("completed_at").toString(), QStringLiteral("2016-03-07"));
        }

        // Cleared, but the layout stays that of the state it was sent in.
        QCOMPARE(form->activeUISate(), state);
        for (QQuickItem *field : {form->enterInfoView()->nameTextField(), form->enterInfoView()->emailTextField(),
                                  form->enterCommentView()->commentInputField(), form->enterOfferTitleView()->offerNameField()})
            QCOMPARE(text(field), QString());
        QCOMPARE(text(form->offerDateCompletedView()->dateBtn()), QStringLiteral("MM/DD/YY"));
        QCOMPARE(form->enterCommentView()->counterText(), QStringLiteral("200"));
        QVERIFY(!checked(form->chooseSubjectView(), "notCreditCheckmark") && !checked(form->chooseSubjectView(), "reportCheckmark")
                && !checked(form->chooseSubjectView(), "otherCheckmark"));
        QVERIFY(!checked(form->offerTimeCompleted(), "yesCheckmark"));

        if (state == 2) {
            QTRY_VERIFY(alert->property("opened").toBool());
            harness.click(alert->findChild<QQuickItem *>(QStringLiteral("alertAction")));
            QTRY_VERIFY(!alertOf(form));
            // Not credited again: state 1, with the date and offer-name pieces still in
            // place below the question, and no send button.
            harness.clickInForm(form, form->chooseSubjectView()->notCreditBtn());
            QCOMPARE(form->activeUISate(), 1);
            QVERIFY(inForm(form, form->offerDateCompletedView()) && inForm(form, form->enterOfferTitleView()));
            QCOMPARE(form->offerDateCompletedView()->y(), form->offerTimeCompleted()->y() + form->offerTimeCompleted()->height());
            QVERIFY(!form->sendButtonView()->isVisible());
        }
    }

    void twoQuickPressesFileTwoTickets()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 5);
        QVERIFY(form);
        form->enterInfoView()->nameTextField()->setProperty("text", QStringLiteral("Ann"));
        form->enterInfoView()->emailTextField()->setProperty("text", QStringLiteral("ann@example.com"));
        form->enterCommentView()->commentInputField()->setProperty("text", QStringLiteral("Twice"));
        // The button is not disabled while a ticket is under way: each press files one.
        m_service.setHeld(FakeOfferService::Tickets, true);
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        harness.click(form->sendButtonView()->sendBtn());
        QTRY_COMPARE(m_service.tickets().size(), 2);
        m_service.setHeld(FakeOfferService::Tickets, false);
        QTRY_COMPARE(form->findChildren<QObject *>(QStringLiteral("alert")).size(), 2);
    }

    void failureKeepsEveryField()
    {
        m_service.setDropped(FakeOfferService::Tickets, true);
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 2);
        QVERIFY(form);
        const QStringList typed{QStringLiteral("Ann"), QStringLiteral("ann@example.com"), QStringLiteral("Dragon"),
                                QStringLiteral("Please look")};
        form->enterInfoView()->nameTextField()->setProperty("text", typed[0]);
        form->enterInfoView()->emailTextField()->setProperty("text", typed[1]);
        form->enterOfferTitleView()->offerNameField()->setProperty("text", typed[2]);
        form->enterCommentView()->commentInputField()->setProperty("text", typed[3]);
        form->dateInputFieldPressed();
        form->onDateDonePressed();
        const QString date = text(form->offerDateCompletedView()->dateBtn());
        harness.clickInForm(form, form->sendButtonView()->sendBtn());
        QTRY_VERIFY(alertOf(form));
        QCOMPARE(alertOf(form)->property("title").toString(), QStringLiteral("No Connection"));
        QCOMPARE(alertOf(form)->property("message").toString(), QStringLiteral("Please check your internet and try again."));
        QCOMPARE(m_service.tickets().size(), 1); // sent once, not again
        QCOMPARE((QStringList{text(form->enterInfoView()->nameTextField()), text(form->enterInfoView()->emailTextField()),
                              text(form->enterOfferTitleView()->offerNameField()),
                              text(form->enterCommentView()->commentInputField())}),
                 typed);
        QCOMPARE(text(form->offerDateCompletedView()->dateBtn()), date);
        QCOMPARE(form->activeUISate(), 2);
        QVERIFY(checked(form->offerTimeCompleted(), "yesCheckmark"));
    }

    void datePanel()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 2);
        QVERIFY(form);
        QQuickItem *panel = form->datePickerView();
        QCOMPARE(panel->opacity(), 0.0);
        QVERIFY(!panel->isVisible());
        harness.clickInForm(form, form->offerDateCompletedView()->dateBtn());
        QTRY_COMPARE(panel->opacity(), 1.0);

        // The wheels show the picker's date.
        form->uiDatePicker()->setProperty("date", QDate(2016, 3, 7));
        QList<int> shown;
        QStringList spoken;
        QList<QAccessibleInterface *> readerWheels;
        for (QQuickItem *wheel : form->uiDatePicker()->findChildren<QQuickItem *>()) {
            if (!wheel->inherits("QQuickTumbler"))
                continue;
            shown << wheel->property("currentIndex").toInt();
            readerWheels << QAccessible::queryAccessibleInterface(wheel->parentItem());
            spoken << readerWheels.last()->text(QAccessible::Description);
        }
        QCOMPARE(shown, (QList<int>{2, 6, 2016 - 2000}));
        QCOMPARE(spoken, (QStringList{QLocale().standaloneMonthName(3, QLocale::ShortFormat), "7", "2016"}));
        // A screen reader steps the day wheel.
        readerWheels[1]->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
        QCOMPARE(form->uiDatePicker()->property("date").toDate(), QDate(2016, 3, 8));
        readerWheels[1]->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());

        form->offerDateCompletedView()->notValid();
        harness.click(form->dateDoneBtn());
        QTRY_COMPARE(panel->opacity(), 0.0);
        QCOMPARE(text(form->offerDateCompletedView()->dateBtn()), QStringLiteral("03/07/16"));
        QCOMPARE(form->chosenDate(), QDate(2016, 3, 7));
        QCOMPARE(form->offerDateCompletedView()->dateIconName(), QStringLiteral("date_field_icon"));

        // Hidden at once, without fading, when the answer changes.
        harness.clickInForm(form, form->offerDateCompletedView()->dateBtn());
        QTRY_COMPARE(panel->opacity(), 1.0);
        form->onChoiceChange(form->offerTimeCompleted()->noButton());
        QCOMPARE(panel->opacity(), 0.0);
    }

    // The user's drag towards the top ends editing once one step moves the form more
    // than ten points; a drag the other way, or in small steps, does not.
    // The user's drag towards the top ends editing once one step moves the form more
    // than ten points; small steps do not.
    void draggingUpDismissesTheKeyboard()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 2);
        QVERIFY(form);
        QQuickItem *scroll = form->scrollView();
        QQuickItem *comment = form->enterCommentView()->commentInputField();
        comment->forceActiveFocus();
        QVERIFY(harness.restsBetweenFrames(scroll));
        scroll->setProperty("contentY", scroll->property("contentHeight").toReal() - scroll->height());
        QVERIFY(harness.restsBetweenFrames(scroll));

        QWindow *window = harness.window.get();
        QPoint finger = scroll->mapToScene(QPointF(6, scroll->height() / 2)).toPoint();
        QTest::mousePress(window, Qt::LeftButton, {}, finger);
        const qreal start = scroll->property("contentY").toReal();
        for (int step = 0; step < 10; ++step)
            QTest::mouseMove(window, finger += QPoint(0, 3));
        QVERIFY(scroll->property("dragging").toBool());
        QVERIFY(scroll->property("contentY").toReal() < start); // moved, three points at a time
        QVERIFY(comment->hasActiveFocus());
        QTest::mouseMove(window, finger += QPoint(0, 30));
        QVERIFY(!comment->hasActiveFocus());
        QTest::mouseRelease(window, Qt::LeftButton, {}, finger);
    }

    // Focus moving to a field above the screen (Shift+Tab, a screen reader) brings it into
    // view; that scrolling is no drag and leaves the field its keyboard.
    void fieldScrolledIntoViewKeepsItsKeyboard()
    {
        SupportHarness harness;
        QVEmailViewController *form = formInState(harness, 2);
        QVERIFY(form);
        QQuickItem *scroll = form->scrollView();
        scroll->setProperty("contentY", scroll->property("contentHeight").toReal() - scroll->height());
        QVERIFY(harness.restsBetweenFrames(scroll));
        QQuickItem *name = form->enterInfoView()->nameTextField();
        QVERIFY(!inView(form, name));
        name->forceActiveFocus(Qt::BacktabFocusReason);
        QVERIFY(harness.restsBetweenFrames(scroll));
        QVERIFY(inView(form, name));
        QVERIFY2(name->hasActiveFocus(), harness.window->activeFocusItem()
                     ? qPrintable(harness.window->activeFocusItem()->objectName()) : "focus on nothing");
    }

    void keyboardAloneFilesATicket()
    {
        SupportHarness harness;
        QVEmailViewController *form = harness.openForm();
        QVERIFY(form);
        QQuickWindow *window = harness.window.get();
        form->enterInfoView()->nameTextField()->forceActiveFocus(Qt::TabFocusReason);
        SupportHarness::typeKeys(window, QStringLiteral("Keyboard User"));
        QTest::keyClick(window, Qt::Key_Tab);
        QVERIFY(form->enterInfoView()->emailTextField()->hasActiveFocus());
        SupportHarness::typeKeys(window, QStringLiteral("keys@example.com"));
        // Reading order: the subject rows follow the e-mail field.
        for (QQuickItem *row : {form->chooseSubjectView()->notCreditBtn(), form->chooseSubjectView()->reportBtn(),
                                form->chooseSubjectView()->otherBtn()}) {
            QTest::keyClick(window, Qt::Key_Tab);
            QVERIFY(row->hasActiveFocus());
        }
        QTest::keyClick(window, Qt::Key_Return);
        QCOMPARE(form->activeUISate(), 5);
        QTest::keyClick(window, Qt::Key_Tab);
        QVERIFY(form->enterCommentView()->commentInputField()->hasActiveFocus());
        SupportHarness::typeKeys(window, QStringLiteral("Typed without a mouse."));
        QTest::keyClick(window, Qt::Key_Tab); // leaves the message, types no tab into it
        QVERIFY(form->sendButtonView()->sendBtn()->hasActiveFocus());
        QCOMPARE(text(form->enterCommentView()->commentInputField()), QStringLiteral("Typed without a mouse."));
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_COMPARE(m_service.tickets().size(), 1);
        QCOMPARE(m_service.tickets().first().value("name").toString(), QStringLiteral("Keyboard User"));
        QCOMPARE(m_service.tickets().first().value("subject_id").toString(), QStringLiteral("3"));
    }

private:
    // A form on a phone in the given state, reached by tapping the choosers.

    QVEmailViewController *formInState(SupportHarness &harness, int state)
    {
        QVEmailViewController *form = harness.openForm();
        if (!form)
            return nullptr;
        QVChooseSubjectView *subject = form->chooseSubjectView();
        if (state == 4 || state == 5) {
            harness.clickInForm(form, state == 4 ? subject->reportBtn() : subject->otherBtn());
        } else if (state != 0) {
            harness.clickInForm(form, subject->notCreditBtn());
            if (state == 2 || state == 3)
                harness.clickInForm(form, state == 2 ? form->offerTimeCompleted()->yesButton()
                                                     : form->offerTimeCompleted()->noButton());
        }
        return form->activeUISate() == state ? form : nullptr;
    }
};

QTEST_MAIN(tst_QVEmailViewController)
#include "tst_QVEmailViewController.moc"
