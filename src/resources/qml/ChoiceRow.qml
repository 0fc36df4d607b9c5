// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia
import QtQuick.Controls.Basic

// A row of a checkmark chooser: its text and the checkmark that marks the choice. The
// chooser alone shows and hides the checkmark. A radio button to a screen reader: its
// class gives it that role, which a control does not take from QML.
RadioButton {
    id: row

    property alias checkmark: check
    property string checkmarkName
    property bool last: false

    // One line of a larger text makes the row taller.
    implicitHeight: Math.round(52 + 18 * (QVDevice.textScale - 1))
    focusPolicy: Qt.StrongFocus
    // The chooser decides what is chosen: a press never checks the button by itself.
    checkable: false
    autoExclusive: false
    indicator: Item {}
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: check.visible
    // The button puts its own checked state there when it is read; the mark's is put back.
    Accessible.onCheckedChanged: if (Accessible.checked !== check.visible) Accessible.checked = check.visible
    Accessible.ignored: !visible || overlayHidden
    // A screen reader's press and toggle choose the row, as a tap does.
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        color: row.down ? theme.tint(theme.card, theme.textPrimary, 0.06) : "transparent"
        FocusRing {
            anchors.margins: 2
            shown: row.visualFocus
        }
        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.leftMargin: 16
            height: 1
            color: theme.separator
            visible: !row.last
        }
    }
    contentItem: Item {
        Text {
            horizontalAlignment: Text.AlignLeft
            anchors.left: parent.left
            anchors.right: check.left
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.leftMargin: 16
            anchors.rightMargin: 8
            anchors.topMargin: 2
            anchors.bottomMargin: 2
            verticalAlignment: Text.AlignVCenter
            text: row.text
            font.pixelSize: Math.round(15 * QVDevice.textScale)
            font.bold: check.visible
            color: theme.textPrimary
            wrapMode: Text.Wrap
            // A long choice gets smaller rather than cut.
            fontSizeMode: Text.Fit
            minimumPixelSize: 10
        }
        QVIconImage {
            id: check
            objectName: row.checkmarkName
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            width: 22
            height: 22
            source: "icons/checkmark.svg"
            color: theme.accent
            visible: false
        }
    }
}
