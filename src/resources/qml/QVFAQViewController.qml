// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import Qt.labs.qmlmodels
import QuorvaMedia

QVFAQViewControllerBase {
    id: faq

    collectionView: list

    ListView {
        id: list
        objectName: "collectionView"
        anchors.fill: parent
        model: faq.model
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Frequently asked questions")
        Accessible.ignored: !visible || overlayHidden

        delegate: DelegateChooser {
            role: "expanded"
            DelegateChoice {
                roleValue: false
                QVQuestionCollectionViewCell {
                    required property int row
                    required question
                    width: ListView.view.width
                    height: faq.heightForRow(row, width)
                    onSelected: faq.didSelectItem(row)
                }
            }
            DelegateChoice {
                roleValue: true
                QVQACollectionViewCell {
                    required property int row
                    required question
                    required answer
                    width: ListView.view.width
                    height: faq.heightForRow(row, width)
                    takesFocus: faq.keyboardRow === row
                    onSelected: faq.didSelectItem(row)
                }
            }
        }
    }
}
