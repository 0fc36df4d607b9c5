// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVQuestionCollectionViewCellBase {
    id: cell

    property string question
    signal selected()

    questionLabel: label

    AbstractButton {
        id: card
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6
        focusPolicy: Qt.StrongFocus
        Accessible.role: Accessible.Button
        Accessible.name: cell.question
        Accessible.description: qsTr("Shows the answer")
        Accessible.ignored: !visible || overlayHidden
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: cell.selected()
        background: Rectangle {
            radius: theme.cornerRadius
            color: card.down ? theme.tint(theme.card, theme.textPrimary, 0.06) : theme.card
            border.width: 1
            border.color: theme.separator
            FocusRing {
                shown: card.visualFocus
                cornerRadius: theme.cornerRadius
                surroundings: theme.card
            }
        }
        contentItem: Item {
            Text {
                id: label
                objectName: "questionLabel"
                horizontalAlignment: Text.AlignLeft
                anchors.left: parent.left
                anchors.right: chevron.left
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                anchors.leftMargin: 16
                anchors.rightMargin: 8
                anchors.topMargin: 6
                anchors.bottomMargin: 6
                verticalAlignment: Text.AlignVCenter
                text: cell.question
                font.pixelSize: Math.round(16 * QVDevice.textScale)
                font.bold: true
                color: theme.textPrimary
                wrapMode: Text.Wrap
                // A long question gets smaller rather than cut.
                fontSizeMode: Text.Fit
                minimumPixelSize: 10
            }
            QVIconImage {
                id: chevron
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                source: "icons/chevron.svg"
                mirror: rightToLeft
                color: theme.textSecondary
            }
        }
    }
}
