// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVAlertPresenter.h"
#include "QVComponentFactory.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

QObject *QVAlertPresenter::present(QQuickItem *over, const QString &title, const QString &message,
                                   const QString &actionTitle, QQmlContext *context)
{
    QObject *alert = QVComponentFactory::create(qmlEngine(over), QStringLiteral("QVAlert"),
                                                {{QStringLiteral("parent"), QVariant::fromValue(over)},
                                                 {QStringLiteral("title"), title},
                                                 {QStringLiteral("message"), message},
                                                 {QStringLiteral("actionTitle"), actionTitle}},
                                                context ? context : qmlContext(over));
    if (!alert)
        return nullptr;
    // The alert belongs to the item it covers and removes itself once dismissed.
    alert->setParent(over);
    QObject::connect(alert, SIGNAL(closed()), alert, SLOT(deleteLater()));
    QMetaObject::invokeMethod(alert, "open");
    // The wall it belongs to keeps the keyboard and the accessibility tree in the alert.
    for (QObject *owner = over; owner; owner = owner->parent()) {
        if (owner->inherits("QVOffersViewController")) {
            QMetaObject::invokeMethod(owner, "alertOpened", Q_ARG(QObject *, alert));
            break;
        }
    }
    return alert;
}
