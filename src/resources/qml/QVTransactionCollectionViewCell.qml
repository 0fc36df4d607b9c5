// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVTransactionCollectionViewCellBase {
    id: cell

    property string offerName
    property string timestamp
    property string payout
    property bool payoutBelowText: false

    payoutLabel: payoutText
    statusLabel: status
    dateLabel: date
    offernameLabel: name
    markerView: marker

    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, credited %3", "a credit: the offer, the amount, when").arg(offerName)
                         .arg(spokenAmount(payout)).arg(timestamp)
    Accessible.ignored: !visible || overlayHidden

    Rectangle {
        id: card
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6
        radius: theme.cornerRadius
        color: theme.card
        border.width: 1
        border.color: theme.separator
        clip: true

        // A tab on the card's leading edge; only its inner corners are round.
        Item {
            id: marker
            objectName: "markerView"
            anchors.left: parent.left
            width: 30
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.topMargin: 18
            anchors.bottomMargin: 18
            Rectangle {
                anchors.fill: parent
                radius: cell.markerCornerRadius
                color: theme.payoutButton
            }
            Rectangle {
                anchors.left: parent.left
                width: cell.markerCornerRadius
                height: parent.height
                color: theme.payoutButton
            }
            QVIconImage {
                anchors.centerIn: parent
                anchors.horizontalCenterOffset: -2
                width: 18
                height: 18
                source: "icons/checkmark-white.svg"
                color: theme.payoutText
            }
        }

        Column {
            anchors.left: marker.right
            anchors.right: cell.payoutBelowText ? parent.right : payoutText.left
            anchors.leftMargin: 16
            anchors.rightMargin: cell.payoutBelowText ? 16 : 12
            anchors.verticalCenter: parent.verticalCenter
            anchors.verticalCenterOffset: cell.payoutBelowText ? -payoutText.height / 2 : 0
            spacing: 6
            Text {
                id: name
                objectName: "offernameLabel"
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: cell.offerName
                font.pixelSize: Math.round(17 * QVDevice.textScale)
                font.bold: true
                color: theme.textPrimary
                elide: Text.ElideRight
            }
            Text {
                id: date
                objectName: "dateLabel"
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: cell.timestamp
                wrapMode: Text.Wrap
                font.pixelSize: Math.round(13 * QVDevice.textScale)
                color: theme.textSecondary
            }
            Label {
                id: status
                objectName: "statusLabel"
                Accessible.ignored: true // the row says it
                text: qsTr("Credited")
                font.pixelSize: Math.round(12 * QVDevice.textScale)
                font.bold: true
                color: theme.payoutText
                leftPadding: 8
                rightPadding: 8
                topPadding: 3
                bottomPadding: 3
                background: Rectangle {
                    radius: 10
                    color: theme.payoutButton
                }
            }
        }
        Text {
            id: payoutText
            objectName: "payoutLabel"
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: cell.payoutBelowText ? undefined : parent.verticalCenter
            anchors.bottom: cell.payoutBelowText ? parent.bottom : undefined
            anchors.bottomMargin: 14
            text: cell.payout
            font.pixelSize: Math.round(20 * QVDevice.textScale)
            font.bold: true
            color: theme.payoutButton
        }
    }
}
