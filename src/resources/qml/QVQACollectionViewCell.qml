// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

// The open question; the layout numbers come from the cell class, which also measures it.
QVQACollectionViewCellBase {
    id: cell

    property string question
    property string answer
    // Opened from the keyboard: the keyboard stays on the question.
    property bool takesFocus: false
    signal selected()

    Component.onCompleted: if (takesFocus) card.forceActiveFocus(Qt.OtherFocusReason)

    questionLabel: questionText
    answerLabel: answerText

    AbstractButton {
        id: card
        anchors.fill: parent
        anchors.leftMargin: cell.cardMarginX
        anchors.rightMargin: cell.cardMarginX
        anchors.topMargin: cell.cardMarginY
        anchors.bottomMargin: cell.cardMarginY
        focusPolicy: Qt.StrongFocus
        Accessible.role: Accessible.Button
        Accessible.name: cell.question
        Accessible.description: cell.answer
        Accessible.ignored: !visible || overlayHidden
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: cell.selected()
        background: Rectangle {
            radius: theme.cornerRadius
            color: theme.card
            border.width: 1
            border.color: theme.tint(theme.card, theme.accent, 0.3)
            FocusRing {
                shown: card.visualFocus
                cornerRadius: theme.cornerRadius
                surroundings: theme.card
            }
        }
        contentItem: Item {
            Text {
                id: questionText
                objectName: "questionLabel"
                horizontalAlignment: Text.AlignLeft
                anchors.left: parent.left
                anchors.leftMargin: cell.padding
                y: cell.padding
                width: parent.width - 2 * cell.padding - cell.accessoryWidth
                text: cell.question
                font.pixelSize: Math.round(cell.questionPixelSize * QVDevice.textScale)
                font.bold: true
                color: theme.accent
                wrapMode: Text.Wrap
            }
            QVIconImage {
                anchors.right: parent.right
                anchors.rightMargin: 12
                y: cell.padding
                width: 20
                height: 20
                rotation: 90
                source: "icons/chevron.svg"
                color: theme.textSecondary
            }
            Text {
                id: answerText
                objectName: "answerLabel"
                horizontalAlignment: Text.AlignLeft
                anchors.left: parent.left
                anchors.leftMargin: cell.padding
                y: questionText.y + questionText.height + cell.spacing
                width: parent.width - 2 * cell.padding
                text: cell.answer
                font.pixelSize: Math.round(cell.answerPixelSize * QVDevice.textScale)
                color: theme.textSecondary
                wrapMode: Text.Wrap
            }
        }
    }
}
