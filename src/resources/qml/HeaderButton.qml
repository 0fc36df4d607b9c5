// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// A round icon button of the wall's header. Plain Qt Quick and the module's own icon
// item, so the wall's first screen loads no control module and no image plugin.
Item {
    id: button

    property url icon
    property string accessibleName
    // Behind something modal: out of the accessibility tree and the keyboard's way.
    property bool hidden: false
    // In the keyboard's Tab order: not while an overlay keeps the keyboard in itself.
    property bool tabStop: !hidden
    signal clicked()

    implicitWidth: 44
    implicitHeight: 44
    activeFocusOnTab: tabStop && !hidden
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.ignored: hidden
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: tap.pressed ? theme.withAlpha(theme.headerText, 0.2) : "transparent"
    }
    FocusRing {
        cornerRadius: button.width / 2
        surroundings: theme.headerStart
    }
    QVIconImage {
        anchors.centerIn: parent
        width: 24
        height: 24
        source: button.icon
        color: theme.headerText
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
