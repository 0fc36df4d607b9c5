// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVSupportViewControllerBase {
    id: root

    segmentedControl: tabs
    errorLabel: error

    clip: true

    Rectangle {
        anchors.fill: parent
        color: root.showsFormBackground ? theme.background : theme.card
    }

    TabBar {
        id: tabs
        objectName: "segmentedControl"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        // Tabs as tall as a finger, drawn as a 34-point segmented control.
        anchors.topMargin: 2
        height: 48
        topInset: 7
        bottomInset: 7
        // Its width comes from its anchors; its tabs' text fits itself to that width.
        implicitWidth: 0
        padding: 2
        spacing: 2
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Support sections")
        Accessible.ignored: !visible || overlayHidden
        onCurrentIndexChanged: root.segmentChanged(currentIndex)
        background: Rectangle {
            radius: 9
            color: theme.tint(theme.background, theme.textPrimary, 0.06)
        }
        Repeater {
            model: [qsTr("FAQ"), qsTr("History"), qsTr("Contact Us")]
            TabButton {
                id: segment
                required property string modelData
                text: modelData
                implicitHeight: 44
                topInset: 7
                bottomInset: 7
                // The text stays inside the drawn segment, smaller if it must.
                topPadding: 9
                bottomPadding: 9
                // A tab of a tab list: the chosen one is selected, as a screen reader expects.
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData
                // A tab is selected, not checked: the button writes its checked state into
                // the accessibility tree itself, so it is taken back each time.
                Accessible.onCheckableChanged: if (Accessible.checkable) Accessible.checkable = false
                Accessible.onCheckedChanged: if (Accessible.checked) Accessible.checked = false
                Accessible.selectable: true
                Accessible.selected: segment.checked
                Accessible.ignored: !visible || overlayHidden
                Accessible.onPressAction: tabs.setCurrentIndex(segment.TabBar.index)
                background: Rectangle {
                    radius: 7
                    color: segment.checked ? theme.card : "transparent"
                    FocusRing {
                        shown: segment.visualFocus
                        cornerRadius: 7
                        surroundings: theme.tint(theme.background, theme.textPrimary, 0.06)
                    }
                }
                contentItem: Text {
                    Accessible.ignored: true
                    text: segment.text
                    font.pixelSize: Math.round(14 * QVDevice.textScale)
                    font.bold: segment.checked
                    // A long tab name takes two lines and gets smaller rather than cut.
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    fontSizeMode: Text.Fit
                    minimumPixelSize: 8
                    color: segment.checked ? theme.accent : theme.textSecondary
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }

    // The form's messages, under the control and over the tab; its lower corners round.
    Label {
        id: error
        objectName: "errorLabel"
        horizontalAlignment: Text.AlignLeft
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        y: root.childTop
        z: 2
        visible: false
        topPadding: 9
        bottomPadding: 9
        leftPadding: 14
        rightPadding: 14
        wrapMode: Text.Wrap
        font.pixelSize: Math.round(14 * QVDevice.textScale)
        font.bold: true
        color: theme.card
        // Read through the alert below: a label keeps the role of a label.
        Accessible.ignored: true
        background: Item {
            Rectangle {
                anchors.fill: parent
                radius: root.errorCornerRadius
                color: theme.error
            }
            Rectangle {
                width: parent.width
                height: root.errorCornerRadius
                color: theme.error
            }
        }
    }
    // The form's message, read out when it shows, over the field it is about.
    Item {
        anchors.fill: error
        visible: error.visible
        Accessible.role: Accessible.AlertMessage
        Accessible.name: error.text
        Accessible.ignored: !visible || overlayHidden
    }
}
