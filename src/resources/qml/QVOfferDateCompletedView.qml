// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
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

        QVIconImage {
            id: icon
            objectName: "dateIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.dateIconName
            color: view.dateIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        Text {
            id: label
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
            // Set by the form when sending found no date.
            property string errorText
            Accessible.name: label.text + " " + text
            Accessible.description: view.dateIconName.endsWith("_error") && errorText.length > 0
                                    ? qsTr("Required, invalid: %1").arg(errorText) : qsTr("Required")
            Accessible.ignored: !visible || overlayHidden
            Accessible.onPressAction: clicked()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            background: Rectangle {
                radius: 8
                color: theme.tint(theme.card, theme.accent, button.down ? 0.18 : 0.09)
                FocusRing {
                    shown: button.visualFocus
                }
            }
            contentItem: Text {
                Accessible.ignored: true
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
