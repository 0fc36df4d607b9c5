// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QQuickItem;

namespace quorva::detail {

// The idiom for a screen of a wall: the one the host fixed, else from the size of the
// wall the item belongs to (the window's, for an item outside any wall such as a
// popover's content), else from the primary screen.
bool isTabletFor(const QQuickItem *item);

} // namespace quorva::detail
