// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "KeyboardPanel.h"

#include <QtCore/QCoreApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <cstdio>

QQuickItem *addKeyboardPanel(QQuickWindow *window)
{
    static QQmlEngine *engine = new QQmlEngine(QCoreApplication::instance());
    QQmlComponent component(engine);
    // Above the popups' overlay, so a popover never covers the keys.
    component.setData("import QtQuick\nimport QtQuick.VirtualKeyboard\n"
                      "InputPanel { z: 2000000; width: parent ? parent.width : 0\n"
                      "    y: parent ? (Qt.inputMethod.visible ? parent.height - height : parent.height) : 0 }\n",
                      QUrl());
    if (!component.isReady()) {
        std::fprintf(stderr, "quorva-demo: no on-screen keyboard: %s\n", qPrintable(component.errorString()));
        return nullptr;
    }
    return qobject_cast<QQuickItem *>(component.createWithInitialProperties(
        {{QStringLiteral("parent"), QVariant::fromValue(window->contentItem())}}));
}
