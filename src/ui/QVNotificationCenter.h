// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>

// The process-wide notifier: one signal per notification, delivered synchronously on
// the posting (GUI) thread. Observers connect to the signal; posters call post().
class QUORVAMEDIA_EXPORT QVNotificationCenter : public QObject
{
    Q_OBJECT

public:
    // A form field left its error look; whoever shows the error message hides it.
    static constexpr QLatin1StringView kHideErrorMessageNotification{"HideErrorMessageNotification"};

    static QVNotificationCenter *defaultCenter();

    // Posts the notification of that name; an unknown name posts nothing.
    void post(QLatin1StringView name, QObject *object);

signals:
    void hideErrorMessage(QObject *object);

private:
    using QObject::QObject;
};
