// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick

// A thin bar showing where a list is while it moves; beside the list, in the same
// parent. Plain Qt Quick, so a screen needs no control style for it.
Rectangle {
    property Flickable list

    anchors.right: list.right
    anchors.rightMargin: 2
    y: list.y + list.visibleArea.yPosition * list.height
    width: 3
    height: list.visibleArea.heightRatio * list.height
    radius: 1.5
    color: theme.withAlpha(theme.textPrimary, 0.5)
    visible: list.moving && list.visibleArea.heightRatio < 1
    Accessible.ignored: true
}
