// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVOfferDateCompletedViewBase {
    id: view

    dateBtn: button
    dateIcon: icon

    // A label too long to sit beside the button (a large text) goes above it.
    readonly property bool stacked: label.implicitWidth > card.width - 58 - button.width - 18
    height: stacked ? label.implicitHeight + button.implicitHeight + 44 : Math.max(label.implicitHeight, button.implicitHeight) + 32

    FormCard {
        id: card
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6

        QVIconImage {
            id: icon
            objectName: "dateIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: view.stacked ? label.verticalCenter : parent.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.dateIconName
            color: view.dateIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        Text {
            id: label
            horizontalAlignment: Text.AlignLeft
            anchors.left: icon.right
            anchors.right: view.stacked ? parent.right : button.left
            anchors.leftMargin: 12
            anchors.rightMargin: view.stacked ? 10 : 8
            anchors.verticalCenter: view.stacked ? undefined : parent.verticalCenter
            y: 12
            wrapMode: Text.WordWrap
            text: qsTr("Completed on")
            font.pixelSize: Math.round(16 * QVDevice.textScale)
            color: theme.textSecondary
        }
        Button {
            id: button
            objectName: "dateBtn"
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: view.stacked ? undefined : parent.verticalCenter
            anchors.bottom: view.stacked ? parent.bottom : undefined
            anchors.bottomMargin: 12
            implicitWidth: Math.max(118, implicitContentWidth + 20)
            implicitHeight: Math.max(44, implicitContentHeight + topPadding + bottomPadding)
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
                font.pixelSize: Math.round(16 * QVDevice.textScale)
                font.bold: true
                color: theme.accent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
