// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia
import QtQuick.Controls.Basic

// The support centre on a tablet. A tap outside does not close it, so it carries its
// own close button.
QVPopover {
    id: popover

    signal closeRequested()

    host: supportHost
    contentItem: Item {
        LayoutMirroring.enabled: rightToLeft
        LayoutMirroring.childrenInherit: true
        clip: true
        // Plain text: a control would put its own role over the heading's.
        Text {
            anchors.verticalCenter: supportClose.verticalCenter
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.ignored: !visible || overlayHidden
            text: qsTr("Corvel Support")
            font.pixelSize: Math.round(16 * QVDevice.textScale)
            font.bold: true
            color: theme.textPrimary
        }
        ToolButton {
            id: supportClose
            objectName: "supportCloseBtn"
            anchors.right: parent.right
            anchors.top: parent.top
            // A finger's size around a 36-point circle.
            topInset: 4
            bottomInset: 4
            leftInset: 4
            rightInset: 4
            icon.source: "icons/close.svg"
            icon.color: theme.textSecondary
            icon.width: 20
            icon.height: 20
            background: Rectangle {
                implicitWidth: 36
                implicitHeight: 36
                radius: width / 2
                color: supportClose.down ? theme.tint(theme.card, theme.textPrimary, 0.06) : "transparent"
                FocusRing {
                    shown: supportClose.visualFocus
                    cornerRadius: parent.radius
                }
            }
            Accessible.name: qsTr("Close support")
            Accessible.ignored: !visible || overlayHidden
            Accessible.onPressAction: clicked()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: popover.closeRequested()
        }
        Item {
            id: supportHost
            objectName: "supportPopoverContent"
            anchors.top: supportClose.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            clip: true
        }
    }
}
