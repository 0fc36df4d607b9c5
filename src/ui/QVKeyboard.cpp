// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVKeyboard.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

void QVKeyboard::endEditing(QQuickItem *view)
{
    if (!view || !view->window())
        return;
    // Only a text input gives up the focus; a focused button keeps it for the keyboard.
    QQuickItem *focused = view->window()->activeFocusItem();
    if (!focused || !(focused->flags() & QQuickItem::ItemAcceptsInputMethod))
        return;
    for (QQuickItem *item = focused; item; item = item->parentItem()) {
        if (item != view)
            continue;
        // Focus moves to the view itself, which takes no text. The input lets go first,
        // or a focus scope would hand the focus straight back to it.
        focused->setFocus(false);
        view->forceActiveFocus(Qt::OtherFocusReason);
        QGuiApplication::inputMethod()->hide();
        return;
    }
}

bool QVKeyboard::isEditing(const QQuickItem *input)
{
    return input && input->hasActiveFocus();
}
