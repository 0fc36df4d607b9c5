// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// A filled button in plain Qt Quick for screens that load no control style.
Rectangle {
    id: button

    property string text
    property int textPixelSize: 16
    // What the button sits on, for a focus ring that stands out from it.
    property color surroundings: theme.background
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
        surroundings: button.surroundings
    }
    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        font.pixelSize: Math.round(button.textPixelSize * QVDevice.textScale)
        font.bold: true
        color: theme.card
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
