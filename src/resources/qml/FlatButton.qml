// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick

// A filled button in plain Qt Quick for screens that load no control style.
Rectangle {
    id: button

    property string text
    signal clicked()

    implicitWidth: Math.max(160, label.implicitWidth + 48)
    implicitHeight: 44
    radius: 6
    color: tap.pressed ? theme.tint(theme.accent, theme.textPrimary, 0.2) : theme.accent
    activeFocusOnTab: visible && !Accessible.ignored
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    FocusRing {
        cornerRadius: button.radius
        surroundings: theme.background
    }
    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        font.pixelSize: 16
        font.bold: true
        color: theme.card
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
