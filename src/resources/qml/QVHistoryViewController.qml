// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVHistoryViewControllerBase {
    id: history

    collectionView: list
    noOffersCompleted: empty

    ListView {
        id: list
        objectName: "collectionView"
        anchors.fill: parent
        model: history.model
        topMargin: history.sectionInsetTop
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Credited offers")
        Accessible.ignored: !visible || overlayHidden || count === 0
        delegate: QVTransactionCollectionViewCell {
            required offerName
            required timestamp
            required payout
            width: ListView.view.width
            height: history.itemHeight
            payoutBelowText: history.payoutBelowText
        }
    }

    Label {
        id: empty
        objectName: "noOffersCompleted"
        Accessible.name: text + " " + emptyDetail.text
        Accessible.ignored: !visible || overlayHidden
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -24
        visible: false
        width: Math.min(parent.width - 48, 300)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: qsTr("No offers completed yet")
        font.pixelSize: Math.round(19 * QVDevice.textScale)
        font.bold: true
        color: theme.textPrimary
    }
    Label {
        id: emptyDetail
        Accessible.ignored: true
        anchors.top: empty.bottom
        anchors.topMargin: 8
        anchors.horizontalCenter: empty.horizontalCenter
        width: Math.min(history.width - 48, 300)
        visible: empty.visible
        text: qsTr("Offers you complete show up here once they are credited.")
        font.pixelSize: Math.round(15 * QVDevice.textScale)
        color: theme.textSecondary
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }
}
