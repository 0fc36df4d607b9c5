// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "ServiceSuite.h"
#include "SupportHarness.h"

#include "KeyboardPanel.h"

#include <QtQuickTest/quicktest.h>

// The ticket form with Qt's on-screen keyboard, added by the host at the bottom of its
// window the way a phone shows its keyboard, and typed on key by key.
class tst_QVKeyboard : public ServiceSuite
{
    Q_OBJECT

private slots:
    void typingOnTheKeysKeepsTheFieldAndSendInSight()
    {
        SupportHarness harness;
        QQuickItem *panel = showWithKeyboard(harness);
        QVERIFY(panel);
        QVEmailViewController *form = harness.openForm();
        QVERIFY(form);
        harness.clickInForm(form, form->chooseSubjectView()->reportBtn());
        QTRY_VERIFY(form->sendButtonView());

        QQuickItem *name = form->enterInfoView()->nameTextField();
        harness.clickInForm(form, name);
        QTRY_VERIFY(QGuiApplication::inputMethod()->isVisible());
        QTRY_COMPARE(form->keyboardInset(), panel->height());
        auto keyboardTop = [&] { return harness.window->height() - panel->height(); };
        QTRY_VERIFY(bottomInWindow(name) <= keyboardTop());
        QVERIFY(typeOnKeys(harness, panel, name, QStringLiteral("ada")));
        QCOMPARE(name->property("text").toString().toLower(), QStringLiteral("ada"));

        QQuickItem *email = form->enterInfoView()->emailTextField();
        harness.clickInForm(form, email);
        QTRY_VERIFY(email->hasActiveFocus());
        QTRY_VERIFY(bottomInWindow(email) <= keyboardTop());
        QVERIFY(typeOnKeys(harness, panel, email, QStringLiteral("ada@example.com")));
        QCOMPARE(email->property("text").toString(), QStringLiteral("ada@example.com"));

        // Writing the details brings the send button up above the keyboard.
        harness.clickInForm(form, form->enterCommentView()->commentInputField());
        QTRY_VERIFY(form->enterCommentView()->commentInputField()->hasActiveFocus());
        QTRY_VERIFY(bottomInWindow(form->sendButtonView()) <= keyboardTop() + 0.5);

        QGuiApplication::inputMethod()->hide();
        QTRY_COMPARE(form->keyboardInset(), 0.0);
    }

    void tabletKeepsItsOwnRules()
    {
        QVDevice::setUserInterfaceIdiom(QVDevice::Idiom::Tablet);
        SupportHarness harness(QSize(1024, 768));
        QQuickItem *panel = showWithKeyboard(harness);
        QVERIFY(panel);
        QVEmailViewController *form = harness.openForm();
        QVERIFY(form);
        QQuickItem *name = form->enterInfoView()->nameTextField();
        harness.clickInForm(form, name);
        QTRY_VERIFY(QGuiApplication::inputMethod()->isVisible());
        QTRY_VERIFY(panel->y() < harness.window->height());
        // A tablet's form makes no room: its popover floats above the keyboard's rows.
        QCOMPARE(form->keyboardInset(), 0.0);
        QGuiApplication::inputMethod()->hide();
        QTRY_VERIFY(!QGuiApplication::inputMethod()->isVisible());
        QCOMPARE(form->keyboardInset(), 0.0);
    }

private:
    // The wall's window, active, with the keyboard panel across its bottom as the demo
    // host adds it.
    QQuickItem *showWithKeyboard(SupportHarness &harness)
    {
        QQuickItem *panel = addKeyboardPanel(harness.window.get());
        if (!panel || !harness.show())
            return nullptr;
        harness.window->requestActivate();
        return QTest::qWaitForWindowActive(harness.window.get()) ? panel : nullptr;
    }

    // The visible on-screen key whose property has the value.
    static QQuickItem *key(QQuickItem *panel, const char *property, const QString &value)
    {
        for (QQuickItem *item : WallHarness::itemsBelow(panel)) {
            if (item->metaObject()->indexOfProperty("displayText") >= 0 && item->isVisible()
                && item->property(property).toString() == value)
                return item;
        }
        return nullptr;
    }

    // A finger on the key that types text, where the key is drawn: the keyboard reads
    // touches, and its rows are laid out again (a word's candidates come and go) only
    // when the next frame is polished.
    bool pressKey(SupportHarness &harness, QQuickItem *panel, const QString &text)
    {
        if (!QQuickTest::qWaitForPolish(harness.window.get(), kPatienceMs))
            return false;
        QQuickItem *item = key(panel, "text", text);
        if (!item)
            return false;
        const QPoint centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        QTest::touchEvent(harness.window.get(), m_touchScreen).press(0, centre, harness.window.get());
        QTest::touchEvent(harness.window.get(), m_touchScreen).release(0, centre, harness.window.get());
        return true;
    }

    // The key that turns to the symbols page and back. Synthesised touches reach the
    // letter keys but not this one, so it is clicked the way its own handler is.
    static bool switchPage(QQuickItem *panel)
    {
        QQuickItem *item = key(panel, "displayText", QStringLiteral("&123"));
        if (!item)
            item = key(panel, "displayText", QStringLiteral("ABC"));
        return item && QMetaObject::invokeMethod(item, "clicked");
    }

    // Types text key by key; a character the letters do not have ("@") is on the
    // symbols page, and the letters are one press away from there.
    bool typeOnKeys(SupportHarness &harness, QQuickItem *panel, QQuickItem *field, const QString &text)
    {
        for (const QChar c : text) {
            const qsizetype before = field->property("displayText").toString().size();
            if (!pressKey(harness, panel, QString(c))) {
                if (!switchPage(panel) || !QTest::qWaitFor([&] { return pressKey(harness, panel, QString(c)); }, kPatienceMs))
                    return false;
            }
            // Typed text may wait as a word in progress: what the field shows counts.
            if (!QTest::qWaitFor([&] { return field->property("displayText").toString().size() > before; }, kPatienceMs))
                return false;
        }
        return true;
    }

    static qreal bottomInWindow(QQuickItem *item)
    {
        return item->mapToScene(QPointF(0, item->height())).y();
    }

    QPointingDevice *m_touchScreen = QTest::createTouchDevice();
};

int main(int argc, char **argv)
{
    // The on-screen keyboard is chosen before the application starts, as a host does.
    qputenv("QT_IM_MODULE", QByteArrayLiteral("qtvirtualkeyboard"));
    QGuiApplication app(argc, argv);
    tst_QVKeyboard test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_QVKeyboard.moc"
