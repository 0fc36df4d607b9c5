// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic

// A borderless single-line field for the form's cards, with a clear button while it
// has text and the focus.
TextField {
    id: field

    signal clearPressed()

    leftPadding: 0
    rightPadding: clear.visible ? clear.width + 4 : 0
    font.pixelSize: 16
    color: theme.textPrimary
    placeholderTextColor: theme.textSecondary
    selectByMouse: true
    background: Item {}

    ToolButton {
        id: clear
        objectName: "clearButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 28
        height: 28
        visible: field.text.length > 0 && field.activeFocus
        focusPolicy: Qt.NoFocus
        text: "\u00d7"
        font.pixelSize: 18
        Accessible.name: qsTr("Clear %1").arg(field.Accessible.name)
        onClicked: field.clearPressed()
        background: Rectangle {
            radius: width / 2
            color: clear.down ? theme.tint(theme.separator, theme.textPrimary, 0.15) : theme.separator
        }
        contentItem: Text {
            text: clear.text
            font: clear.font
            color: theme.textSecondary
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
