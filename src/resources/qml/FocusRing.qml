// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick

// The ring the keyboard's focus draws around a control: a theme colour that stands out by
// 3 : 1 from what surrounds the control, just outside its edge. Decoration only.
Rectangle {
    property Item target: parent
    property bool shown: target.activeFocus
    property color surroundings: theme.card
    property real cornerRadius: 8

    anchors.fill: target
    anchors.margins: -3
    radius: cornerRadius + 3
    color: "transparent"
    border.width: 2
    border.color: theme.focusRing(surroundings)
    visible: shown
    Accessible.ignored: true
}
