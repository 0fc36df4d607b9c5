// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

QVFilterUICollectionViewCellBase {
    id: cell

    property string title
    signal pressed()

    name: label
    checkmarkImage: check

    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.ignored: !visible || overlayHidden
    Accessible.onPressAction: cell.pressed()
    Accessible.onToggleAction: cell.pressed()
    Keys.onReturnPressed: cell.pressed()
    Keys.onEnterPressed: cell.pressed()
    Keys.onSpacePressed: cell.pressed()

    Rectangle {
        anchors.fill: parent
        color: tap.pressed ? theme.tint(theme.card, theme.textPrimary, 0.06) : "transparent"
    }
    FocusRing {
        anchors.margins: 2
        cornerRadius: 6
    }
    Text {
        id: label
        objectName: "name"
        Accessible.ignored: true // the row reads its title
        horizontalAlignment: Text.AlignLeft
        anchors.left: parent.left
        anchors.right: check.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 20
        anchors.rightMargin: 8
        text: cell.title
        font.pixelSize: Math.round(16 * QVDevice.textScale)
        font.bold: cell.selected
        color: theme.textPrimary
        // A large text takes a second line; the row has room for it.
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }
    QVIconImage {
        id: check
        objectName: "checkmarkImage"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: 20
        width: 22
        height: 22
        source: "icons/checkmark.svg"
        color: theme.accent
        visible: false
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: 20
        height: 1
        color: theme.separator
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: cell.pressed()
    }
}
