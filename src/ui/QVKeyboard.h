// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

class QQuickItem;

// Keyboard helpers for screens with text inputs.
class QVKeyboard
{
public:
    // Ends editing inside view: the text input that has the focus there loses it and the
    // on-screen keyboard goes away. Focus elsewhere in the window, or on a button, is
    // left alone.
    static void endEditing(QQuickItem *view);
    // True when the input has the keyboard focus (is the first responder).
    static bool isEditing(const QQuickItem *input);
};
