// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import Qt.labs.qmlmodels
import QuorvaMedia

QVFiltersViewControllerBase {
    id: panel

    collectionView: list
    saveButton: save

    ListView {
        id: list
        objectName: "collectionView"
        anchors.fill: parent
        anchors.topMargin: panel.topMargin + panel.sectionInsetTop
        anchors.bottomMargin: save.visible ? save.height + 28 : 0
        clip: true
        model: panel.model
        boundsBehavior: Flickable.StopAtBounds

        reuseItems: true
        delegate: DelegateChooser {
            role: "kind"
            DelegateChoice {
                roleValue: "header"
                QVFilterUICollectionViewHeader {
                    required title
                    width: ListView.view.width
                }
            }
            DelegateChoice {
                roleValue: "cell"
                QVFilterUICollectionViewCell {
                    required property int sectionIndex
                    required property int row
                    required title
                    required selected
                    width: ListView.view.width
                    height: panel.itemHeight
                    onPressed: panel.didSelectItem(sectionIndex, row)
                }
            }
        }

        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }
    }

    Button {
        id: save
        objectName: "saveButton"
        visible: false
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        height: 48
        text: qsTr("Apply Filters")
        Accessible.name: qsTr("Apply the filters")
        Accessible.ignored: !visible || overlayHidden
        Accessible.onPressAction: clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: panel.onSavedPressed()
        background: Rectangle {
            radius: panel.cornerRadius
            color: save.pressed ? theme.tint(theme.accent, theme.textPrimary, 0.2) : theme.accent
            FocusRing {
                shown: save.visualFocus
                cornerRadius: panel.cornerRadius
            }
        }
        contentItem: Label {
            Accessible.ignored: true
            text: save.text
            font.pixelSize: 17
            font.bold: true
            color: theme.card
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
