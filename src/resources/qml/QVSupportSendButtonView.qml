// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVSupportSendButtonViewBase {
    id: view

    sendBtn: send

    height: 76

    Button {
        id: send
        objectName: "sendBtn"
        // The button keeps its size when the piece grows to the notice's height.
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 10
        height: 52
        text: qsTr("Send")
        Accessible.name: qsTr("Send the message")
        Accessible.ignored: !visible || overlayHidden
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        background: Rectangle {
            radius: view.cornerRadius
            border.width: view.borderWidth
            border.color: view.borderColor
            color: send.down ? theme.tint(theme.accent, theme.textPrimary, 0.2) : theme.accent
            FocusRing {
                shown: send.visualFocus
                cornerRadius: view.cornerRadius
                surroundings: theme.background
            }
        }
        contentItem: Text {
            Accessible.ignored: true
            text: send.text
            font.pixelSize: Math.round(17 * QVDevice.textScale)
            font.bold: true
            color: theme.card
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
