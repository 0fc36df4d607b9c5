// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QString>

class QObject;
class QQmlContext;
class QQuickItem;

// Shows a one-button alert over an item. The alert is a dialog with objectName "alert",
// string properties "title" and "message", and one button with objectName "alertAction".
class QVAlertPresenter
{
public:
    static QObject *present(QQuickItem *over, const QString &title, const QString &message,
                            const QString &actionTitle, QQmlContext *context = nullptr);
};
