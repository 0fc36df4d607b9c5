// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVChooseSubjectViewBase {
    id: view

    notCreditBtn: notCredited
    reportBtn: report
    otherBtn: other
    notCreditCheckmark: notCredited.checkmark
    reportCheckmark: report.checkmark
    otherCheckmark: other.checkmark

    // Grows with its texts: a large text, a long language.
    height: Math.max(212, 40 + title.implicitHeight + notCredited.height + report.height + other.height)

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6

        Text {
            id: title
            horizontalAlignment: Text.AlignLeft
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            y: 14
            // One line: a long heading gets smaller instead.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            text: qsTr("What can we help you with?")
            font.pixelSize: Math.round(13 * QVDevice.textScale)
            font.bold: true
            font.capitalization: Font.AllUppercase
            font.letterSpacing: 0.6
            color: theme.accent
        }
        Column {
            anchors.top: title.bottom
            anchors.topMargin: 6
            anchors.left: parent.left
            anchors.right: parent.right
            // The question names the group of its choices.
            Accessible.role: Accessible.Grouping
            Accessible.name: title.text
            Accessible.ignored: !visible || overlayHidden
            ChoiceRow {
                id: notCredited
                objectName: "notCreditBtn"
                checkmarkName: "notCreditCheckmark"
                width: parent.width
                text: qsTr("I completed an offer but wasn't credited")
                onClicked: view.onSelectionChange(notCredited)
            }
            ChoiceRow {
                id: report
                objectName: "reportBtn"
                checkmarkName: "reportCheckmark"
                width: parent.width
                text: qsTr("Report an offer")
                onClicked: view.onSelectionChange(report)
            }
            ChoiceRow {
                id: other
                objectName: "otherBtn"
                checkmarkName: "otherCheckmark"
                width: parent.width
                text: qsTr("Something else")
                last: true
                onClicked: view.onSelectionChange(other)
            }
        }
    }
}
