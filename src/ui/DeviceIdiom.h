// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QQuickItem;

namespace quorva::detail {

// The idiom for a screen of a wall: the one the host fixed, else from the size of the
// wall the item belongs to (the window's, for an item outside any wall such as a
// popover's content), else from the primary screen.
bool isTabletFor(const QQuickItem *item);

// A height designed at text scale 1.0 of which its texts take textPart: the texts grow
// with the host's text scale, the rest stays.
double grownWithText(double designHeight, double textPart);

// A designed font size at the host's text scale, rounded as the interface files round it.
int scaledPixelSize(int designSize);

} // namespace quorva::detail
