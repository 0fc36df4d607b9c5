// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SupportTour.h"
#include "KeyboardPanel.h"
#include "SandboxProcess.h"
#include "Tour.h"

#include <QtCore/QDate>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>

using namespace tour;

namespace {
// The tickets the sandbox holds, or -1 when it cannot be asked.
int storedTickets(SandboxProcess &sandbox)
{
    QNetworkAccessManager network;
    QNetworkRequest request(QUrl(QStringLiteral("http://%1/sandbox/tickets.json").arg(sandbox.baseAddress())));
    QNetworkReply *reply = network.get(request);
    if (!spinUntil([reply] { return reply->isFinished(); }))
        return -1;
    reply->deleteLater();
    const QJsonDocument document = QJsonDocument::fromJson(reply->readAll());
    return document.isObject() ? int(document.object().value(QStringLiteral("tickets")).toArray().size()) : -1;
}

QVSupportViewController *openSupport(Camera &camera, Scene &scene)
{
    scene.wall->onSupportPressed();
    if (!spinUntil([&] { return scene.wall->supportVC() && !scene.wall->isOverlayAnimating(); })) {
        camera.fail(QStringLiteral("the support centre did not open"));
        return nullptr;
    }
    return scene.wall->supportVC();
}

// Shows a tab and waits for it to be drawn, so that what is tapped next is laid out.
void showTab(QVSupportViewController *support, int index)
{
    support->findChild<QObject *>(QStringLiteral("segmentedControl"))->setProperty("currentIndex", index);
    nextFrame(support->window());
}

bool formInState(QVEmailViewController *form, int state)
{
    return form && form->activeUISate() == state;
}

// Scrolls the form so that item is on screen, as a user would before tapping it.
void reveal(QVEmailViewController *form, QQuickItem *item)
{
    QQuickItem *scroll = form->scrollView();
    const QRectF inContent = item->mapRectToItem(form->contentView(), item->boundingRect());
    const qreal lowest = qMax<qreal>(0, scroll->property("contentHeight").toReal() - scroll->height());
    scroll->setProperty("contentY", qBound<qreal>(0, inContent.bottom() - scroll->height() + 24, lowest));
}
} // namespace

void runSupportTour(Camera &camera, SandboxProcess &sandbox)
{
    auto scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
    spinUntil([&] { return !scene->wall->offersList().isEmpty(); });
    QVSupportViewController *support = openSupport(camera, *scene);
    if (!support)
        return;
    QVFAQViewController *faq = support->faqViewController();
    if (!faq) {
        camera.fail(QStringLiteral("the questions tab was not built"));
        return;
    }
    faq->didSelectItem(1);
    camera.shoot(*scene, QStringLiteral("phone-support-faq"), [&] {
        return findItem(faq, QStringLiteral("answerLabel")) != nullptr;
    });

    showTab(support, QVSupportViewController::HistoryTab);
    QVHistoryViewController *history = support->historyViewController();
    camera.shoot(*scene, QStringLiteral("phone-support-history"),
                 [&] { return !history->isLoading() && history->model()->rowCount() > 0; });

    showTab(support, QVSupportViewController::FormTab);
    QVEmailViewController *form = support->emailViewController();
    QQuickWindow *window = scene->window.get();
    reveal(form, form->chooseSubjectView()->notCreditBtn());
    tap(window, form->chooseSubjectView()->notCreditBtn());
    camera.shoot(*scene, QStringLiteral("phone-support-form-state1"), [&] { return formInState(form, 1); });

    reveal(form, form->offerTimeCompleted()->noButton());
    tap(window, form->offerTimeCompleted()->noButton());
    camera.shoot(*scene, QStringLiteral("phone-support-form-state3"), [&] { return formInState(form, 3); });

    reveal(form, form->offerTimeCompleted()->yesButton());
    tap(window, form->offerTimeCompleted()->yesButton());
    camera.shoot(*scene, QStringLiteral("phone-support-form-state2"), [&] { return formInState(form, 2); });

    // Sent empty: the first field found wanting is marked and named in the error strip.
    form->sendPressed();
    camera.shoot(*scene, QStringLiteral("phone-support-form-invalid"), [&] {
        // Shown once the form has moved its top out from under the strip.
        return support->errorLabel()->isVisible()
            && form->scrollView()->property("contentY").toReal() == -form->topInset();
    });

    type(window, form->enterInfoView()->nameTextField(), QStringLiteral("Ada Demo"));
    type(window, form->enterInfoView()->emailTextField(), QStringLiteral("ada@example.com"));
    type(window, form->enterOfferTitleView()->offerNameField(), QStringLiteral("Dragon Realms"));
    type(window, form->enterCommentView()->commentInputField(),
         QStringLiteral("I reached level 10 on Saturday but the gems never arrived."));
    form->uiDatePicker()->setProperty("date", QDate::currentDate().addDays(-2));
    reveal(form, form->offerDateCompletedView()->dateBtn());
    tap(window, form->offerDateCompletedView()->dateBtn());
    camera.shoot(*scene, QStringLiteral("phone-support-date-picker"), [&] {
        // Each wheel has turned to the date: its current row sits in its middle.
        const QList<QQuickItem *> wheels = form->uiDatePicker()->findChildren<QQuickItem *>();
        const bool turned = std::all_of(wheels.begin(), wheels.end(), [](QQuickItem *wheel) {
            if (!wheel->inherits("QQuickTumbler"))
                return true;
            auto *row = wheel->property("currentItem").value<QQuickItem *>();
            return row && qAbs(row->mapToItem(wheel, QPointF(0, row->height() / 2)).y() - wheel->height() / 2) < 1;
        });
        return turned && form->datePickerView()->opacity() == 1.0;
    });
    tap(window, form->dateDoneBtn());
    spinUntil([&] { return !form->datePickerView()->isVisible(); }); // the panel fades away

    const int before = storedTickets(sandbox);
    reveal(form, form->sendButtonView());
    tap(window, form->sendButtonView()->sendBtn());
    camera.shoot(*scene, QStringLiteral("phone-support-message-sent"), [&] { return popupOpened(form, "alert"); });
    const int after = storedTickets(sandbox);
    if (before < 0 || after != before + 1) {
        const QString said = support->errorLabel()->isVisible() ? support->errorLabel()->property("text").toString()
                                                                : QStringLiteral("nothing");
        camera.fail(QStringLiteral("the ticket typed into the form was stored %1 times (the form said %2)")
                        .arg(after - before)
                        .arg(said));
    }

    {
        auto empty = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone, QStringLiteral("user-without-history"));
        if (QVSupportViewController *emptySupport = openSupport(camera, *empty)) {
            showTab(emptySupport, QVSupportViewController::HistoryTab);
            camera.shoot(*empty, QStringLiteral("phone-support-history-empty"), [&] {
                QQuickItem *label = emptySupport->historyViewController()->findChild<QQuickItem *>(
                    QStringLiteral("noOffersCompleted"));
                return label && label->isVisible();
            });
        }
    }

    auto tablet = openWall(QStringLiteral("7"), QVDevice::Idiom::Tablet);
    spinUntil([&] { return picturesShown(tablet->wall); });
    tablet->wall->onSupportPressed();
    camera.shoot(*tablet, QStringLiteral("tablet-support-popover"), [&] { return popupOpened(tablet->wall, "supportPopover"); });
    if (QVSupportViewController *popoverSupport = tablet->wall->supportVC()) {
        showTab(popoverSupport, QVSupportViewController::FormTab);
        QVEmailViewController *tabletForm = popoverSupport->emailViewController();
        tap(tablet->window.get(), tabletForm->chooseSubjectView()->reportBtn());
        camera.shoot(*tablet, QStringLiteral("tablet-support-form"), [&] { return formInState(tabletForm, 4); });
    }
}

void shootFormWithKeyboard(Camera &camera)
{
    auto scene = openWall(QStringLiteral("7"), QVDevice::Idiom::Phone);
    QQuickWindow *window = scene->window.get();
    QQuickItem *panel = addKeyboardPanel(window);
    if (!panel) {
        camera.fail(QStringLiteral("the on-screen keyboard is not installed"));
        return;
    }
    // Keys go to the active window.
    window->requestActivate();
    spinUntil([window] { return window->isActive(); });
    QVSupportViewController *support = openSupport(camera, *scene);
    if (!support)
        return;
    showTab(support, QVSupportViewController::FormTab);
    QVEmailViewController *form = support->emailViewController();
    tap(window, form->chooseSubjectView()->reportBtn());
    QQuickItem *name = form->enterInfoView()->nameTextField();
    tap(window, name);
    name->setProperty("text", QStringLiteral("Ada"));
    camera.shoot(*scene, QStringLiteral("phone-support-form-keyboard"), [&] {
        return QGuiApplication::inputMethod()->isVisible() && form->keyboardInset() > 0
            && qFuzzyCompare(panel->y() + panel->height(), qreal(window->height()));
    });
}
