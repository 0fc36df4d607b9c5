// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// Shown in the send button's place, at its height.
QVUnableToAssistBase {
    height: 120
    // Taller than the send button when its text wraps further (a long language).
    implicitHeight: texts.implicitHeight + 34
    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 4
        anchors.bottomMargin: 6
        radius: theme.cornerRadius
        color: theme.tint(theme.card, theme.accent, 0.09)

        QVIconImage {
            id: icon
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/info.svg"
            color: theme.accent
        }
        Column {
            id: texts
            Accessible.role: Accessible.StaticText
            Accessible.name: heading.text + " " + detail.text
            Accessible.ignored: !visible || overlayHidden
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            Text {
                id: heading
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: qsTr("Rewards can take up to 24 hours")
                font.pixelSize: Math.round(15 * QVDevice.textScale)
                font.bold: true
                color: theme.textPrimary
                wrapMode: Text.Wrap
            }
            Text {
                id: detail
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: qsTr("Please check back tomorrow; we can't look into it sooner.")
                font.pixelSize: Math.round(13 * QVDevice.textScale)
                color: theme.textSecondary
                wrapMode: Text.Wrap
            }
        }
    }
}
