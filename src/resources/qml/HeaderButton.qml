// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.impl

// A round icon button of the wall's header. Plain Qt Quick, so the wall's first screen
// loads no control style.
Item {
    id: button

    property url icon
    property string accessibleName
    signal clicked()

    implicitWidth: 44
    implicitHeight: 44
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: tap.pressed ? theme.withAlpha(theme.headerText, 0.2) : "transparent"
        border.width: button.activeFocus ? 2 : 0
        border.color: theme.headerText
    }
    ColorImage {
        anchors.centerIn: parent
        width: 24
        height: 24
        source: button.icon
        sourceSize: Qt.size(48, 48)
        color: theme.headerText
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
