// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtQuick/QQuickItem>

namespace quorva::detail {

// Frames to wait for a panel's controls to be built before giving up on focusing one.
constexpr int kFocusAttempts = 30;

bool isDescendant(const QQuickItem *item, const QQuickItem *ancestor);
// The first item in the keyboard's order inside root, or none yet.
QQuickItem *firstFocusableIn(QQuickItem *root);
// Moves the keyboard onto the first control of root once it is built and shown: panels
// lay out their lists, and fade in, over their first frames.
void focusFirstWhenBuilt(QQuickItem *root, int attemptsLeft = kFocusAttempts);

} // namespace quorva::detail
