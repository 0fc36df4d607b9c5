// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia
import QtQuick.Controls.Basic

// A one-button alert centred over the item it belongs to.
Dialog {
    id: alert
    objectName: "alert"

    property string message
    property string actionTitle: qsTr("Ok")

    anchors.centerIn: parent
    width: Math.min(parent ? parent.width - 64 : 270, 290)
    modal: true
    closePolicy: Popup.CloseOnEscape
    padding: 0
    topPadding: 0

    background: Rectangle {
        LayoutMirroring.enabled: rightToLeft
        LayoutMirroring.childrenInherit: true
        radius: theme.cornerRadius + 4
        color: theme.card
    }

    // Plain text: a control would put its own role over the heading's.
    header: Text {
        Accessible.role: Accessible.Heading
        Accessible.name: text
        text: alert.title
        topPadding: 20
        leftPadding: 16
        rightPadding: 16
        font.pixelSize: Math.round(17 * QVDevice.textScale)
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: theme.textPrimary
    }

    contentItem: Label {
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
        LayoutMirroring.enabled: rightToLeft
        LayoutMirroring.childrenInherit: true
        text: alert.message.trim()
        topPadding: 6
        bottomPadding: 18
        leftPadding: 16
        rightPadding: 16
        font.pixelSize: Math.round(14 * QVDevice.textScale)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        color: theme.textSecondary
    }

    footer: Item {
        // The action's row grows with a large text.
        implicitHeight: Math.max(46, action.implicitHeight + 1)
        Rectangle {
            width: parent.width
            height: 1
            color: theme.separator
        }
        Button {
            id: action
            objectName: "alertAction"
            anchors.fill: parent
            anchors.topMargin: 1
            text: alert.actionTitle
            Accessible.name: alert.actionTitle
            Accessible.onPressAction: clicked()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            flat: true
            font.pixelSize: Math.round(17 * QVDevice.textScale)
            font.bold: true
            onClicked: alert.close()
            background: Rectangle {
                color: parent.pressed ? theme.tint(theme.card, theme.textPrimary, 0.06) : "transparent"
                radius: 14
                FocusRing {
                    anchors.margins: 3
                    shown: parent.parent.visualFocus
                    cornerRadius: 11
                }
            }
            contentItem: Label {
                Accessible.ignored: true
                text: parent.text
                font: parent.font
                color: theme.accent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
