// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVNotificationCenter.h"

#include <QtCore/QCoreApplication>

QVNotificationCenter *QVNotificationCenter::defaultCenter()
{
    static QVNotificationCenter *center = new QVNotificationCenter(QCoreApplication::instance());
    return center;
}

void QVNotificationCenter::post(QLatin1StringView name, QObject *object)
{
    if (name == kHideErrorMessageNotification)
        emit hideErrorMessage(object);
}
