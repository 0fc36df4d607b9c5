// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVOfferTimeCompletedViewBase {
    id: view

    yesButton: yes
    noButton: no
    yesCheckmark: yes.checkmark
    noCheckmark: no.checkmark

    // Grows with its texts: a large text, a long language.
    height: Math.max(172, 32 + question.implicitHeight + yes.height + no.height)

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6

        Text {
            id: question
            horizontalAlignment: Text.AlignLeft
            anchors.left: parent.left
            anchors.leftMargin: 16
            y: 14
            width: parent.width - 32
            text: qsTr("Has it been more than 24 hours since you completed the offer?")
            font.pixelSize: Math.round(15 * QVDevice.textScale)
            font.bold: true
            color: theme.textPrimary
            wrapMode: Text.Wrap
        }
        Column {
            anchors.top: question.bottom
            anchors.topMargin: 4
            anchors.left: parent.left
            anchors.right: parent.right
            // The question names the group of its choices.
            Accessible.role: Accessible.Grouping
            Accessible.name: question.text
            Accessible.ignored: !visible || overlayHidden
            ChoiceRow {
                id: yes
                objectName: "yesButton"
                checkmarkName: "yesCheckmark"
                width: parent.width
                text: qsTr("Yes")
                onClicked: view.onSelectionChange(yes)
            }
            ChoiceRow {
                id: no
                objectName: "noButton"
                checkmarkName: "noCheckmark"
                width: parent.width
                text: qsTr("No")
                last: true
                onClicked: view.onSelectionChange(no)
            }
        }
    }
}
