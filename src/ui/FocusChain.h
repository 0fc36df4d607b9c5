// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtQuick/QQuickItem>

#include <functional>

namespace quorva::detail {

// Frames to wait for a panel's controls to be built before giving up on focusing one.
constexpr int kFocusAttempts = 30;

bool isDescendant(const QQuickItem *item, const QQuickItem *ancestor);
// The first shown item in the keyboard's order inside root that accept takes, or none yet.
QQuickItem *firstFocusableIn(QQuickItem *root, const std::function<bool(QQuickItem *)> &accept = {});
// Moves the keyboard onto the first control of root (that accept takes) once it is built
// and shown: panels lay out their lists, and fade in, over their first frames.
void focusFirstWhenBuilt(QQuickItem *root, int attemptsLeft = kFocusAttempts,
                         const std::function<bool(QQuickItem *)> &accept = {});

} // namespace quorva::detail
