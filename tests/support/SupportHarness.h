// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Patience.h"
#include "WallHarness.h"

#include <QtCore/QDeadlineTimer>

// A wall in a real window with its support centre opened through the header button.
class SupportHarness : public WallHarness
{
public:
    using WallHarness::WallHarness;

    // Shows the wall if it is not yet, presses the support button and waits until the
    // centre has settled in place.
    QVSupportViewController *openSupport()
    {
        if (!window->isVisible() && !show())
            return nullptr;
        click(find(QStringLiteral("supportBtn")));
        const bool settled = QTest::qWaitFor([this] { return wall->supportVC() && !wall->isOverlayAnimating(); },
                                             kPatienceMs)
            && (!QVDevice::isTablet() || QTest::qWaitFor([this] {
                   QObject *popover = wall->findChild<QObject *>(QStringLiteral("supportPopover"));
                   return popover && popover->property("opened").toBool();
               }, kPatienceMs))
            && nextFrame();
        return settled ? wall->supportVC() : nullptr;
    }

    static void showTab(QVSupportViewController *support, int index)
    {
        support->findChild<QObject *>(QStringLiteral("segmentedControl"))->setProperty("currentIndex", index);
    }

    // The form tab, built and shown.
    QVEmailViewController *openForm()
    {
        QVSupportViewController *support = openSupport();
        if (!support)
            return nullptr;
        showTab(support, QVSupportViewController::FormTab);
        return nextFrame() ? support->emailViewController() : nullptr;
    }

    // Brings item into view inside the form's scroll view, then clicks it where it is
    // drawn. A frame that never comes fails the test; the click then does not go in.
    void clickInForm(QVEmailViewController *form, QQuickItem *item)
    {
        QQuickItem *scroll = form->scrollView();
        // The form may still be bringing a focused field into view (after an alert, say);
        // a click while it moves lands where the item was when the click was aimed.
        QVERIFY2(restsBetweenFrames(scroll), "the form kept scrolling");
        const QRectF inContent = item->mapRectToItem(form->contentView(), item->boundingRect());
        const qreal maxY = qMax<qreal>(0, scroll->property("contentHeight").toReal() - scroll->height());
        scroll->setProperty("contentY", qBound<qreal>(0, inContent.center().y() - scroll->height() / 2, maxY));
        QVERIFY2(nextFrame(), "no frame was drawn after scrolling the form");
        click(item);
    }

    // True once a frame leaves the scroll view where the frame before it did.
    bool restsBetweenFrames(QQuickItem *scroll)
    {
        QDeadlineTimer patience(kPatienceMs);
        while (!patience.hasExpired()) {
            const qreal before = scroll->property("contentY").toReal();
            if (!nextFrame())
                return false;
            if (!scroll->property("moving").toBool() && qFuzzyCompare(1 + before, 1 + scroll->property("contentY").toReal()))
                return true;
        }
        return false;
    }

    // Types into input through the window, key by key.
    void type(QQuickItem *input, const QString &text)
    {
        input->forceActiveFocus(Qt::TabFocusReason);
        typeKeys(window.get(), text);
    }

    static void typeKeys(QWindow *target, const QString &text)
    {
        for (const QChar c : text) {
            if (c == u'\n')
                QTest::keyClick(target, Qt::Key_Return);
            else
                QTest::keyClick(target, c.toLatin1());
        }
    }
};
