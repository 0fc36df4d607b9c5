// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
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
    }
    ScrollBarLine {
        list: list
    }

    FlatButton {
        id: save
        objectName: "saveButton"
        visible: false
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        height: 48
        radius: panel.cornerRadius
        textPixelSize: 17
        surroundings: theme.card
        text: qsTr("Apply Filters")
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Apply the filters")
        Accessible.ignored: !visible || overlayHidden
        onClicked: panel.onSavedPressed()
    }
}
