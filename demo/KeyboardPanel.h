// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QQuickItem;
class QQuickWindow;

// Qt's on-screen keyboard across the bottom of the host's window, shown while a text
// field has the focus. The host chooses the keyboard before its application starts
// (QT_IM_MODULE=qtvirtualkeyboard). Returns nullptr when the keyboard is not installed.
QQuickItem *addKeyboardPanel(QQuickWindow *window);
