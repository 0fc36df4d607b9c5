// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.impl
import QtQuick.Controls.Basic
import QuorvaMedia

QVOfferDateCompletedViewBase {
    id: view

    dateBtn: button
    dateIcon: icon

    height: 76

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6

        ColorImage {
            id: icon
            objectName: "dateIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.dateIconName
            color: view.dateIconName.endsWith("_error") ? theme.error : theme.textSecondary
            sourceSize: Qt.size(48, 48)
        }
        Text {
            horizontalAlignment: Text.AlignLeft
            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Completed on")
            font.pixelSize: 16
            color: theme.textSecondary
        }
        Button {
            id: button
            objectName: "dateBtn"
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 118
            implicitHeight: 40
            text: view.placeholder
            Accessible.name: qsTr("Completion date: %1").arg(text)
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            background: Rectangle {
                radius: 8
                color: theme.tint(theme.card, theme.accent, button.down ? 0.18 : 0.09)
                border.width: button.visualFocus ? 2 : 0
                border.color: theme.accent
            }
            contentItem: Text {
                text: button.text
                font.pixelSize: 16
                font.bold: true
                color: theme.accent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
