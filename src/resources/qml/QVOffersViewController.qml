// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// The wall's first screen is plain Qt Quick: no control style is loaded before the first
// offers are on screen. Popovers and alerts are built when first needed.
QVOffersViewControllerBase {
    id: root

    headerView: header
    headerTitle: title
    closeBtn: closeButton
    filterBtn: filterButton
    supportBtn: supportButton
    collectionView: list
    noOffersLabel: emptyLabel
    creditNotice: creditNoticeView

    clip: true
    // Escape closes what is open, the topmost first; what it does not close goes on to
    // the host.
    Keys.onEscapePressed: (event) => { event.accepted = root.closeOpenPanel() }
    // A right-to-left language mirrors every screen below the wall.
    LayoutMirroring.enabled: root.rightToLeft
    LayoutMirroring.childrenInherit: true

    Rectangle {
        objectName: "wallBackground"
        anchors.fill: parent
        color: theme.background
    }

    // First in the reading order and the keyboard's, above the list in the paint order.
    Rectangle {
        id: header
        objectName: "headerView"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: root.headerHeight
        z: 2
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0.0; color: theme.headerStart }
            GradientStop { position: 1.0; color: theme.headerEnd }
        }

        MouseArea {
            anchors.fill: parent
            onClicked: root.headerTapped()
        }

        HeaderButton {
            id: closeButton
            objectName: "closeBtn"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: 6
            icon: "icons/header-close.svg"
            accessibleName: qsTr("Close the offers")
            hidden: root.headerHidden || root.contentHidden
            onClicked: root.onClosePressed()
        }

        Text {
            id: title
            objectName: "headerTitle"
            anchors.centerIn: parent
            width: parent.width - 2 * 100
            height: parent.height - 12
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            // A long title takes two lines and gets smaller before it is cut.
            wrapMode: Text.Wrap
            maximumLineCount: 2
            fontSizeMode: Text.Fit
            minimumPixelSize: 11
            font.pixelSize: Math.round(18 * QVDevice.textScale)
            font.bold: true
            color: theme.headerText
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.ignored: root.headerHidden
        }

        Row {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.rightMargin: 6
            HeaderButton {
                id: supportButton
                objectName: "supportBtn"
                icon: "icons/header-support.svg"
                accessibleName: qsTr("Help and support")
                hidden: root.headerHidden
                tabStop: !root.contentHidden
                onClicked: root.onSupportPressed()
            }
            HeaderButton {
                id: filterButton
                objectName: "filterBtn"
                icon: "icons/header-filter.svg"
                accessibleName: qsTr("Sort and filter offers")
                hidden: root.headerHidden
                tabStop: !root.contentHidden
                onClicked: root.onFilterPressed()
            }
        }
    }

    // Rows of one offer, or two side by side on a wide wall. Rows leaving the screen are
    // reused for rows coming in; none are built ahead of need.
    ListView {
        id: list
        objectName: "collectionView"
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        model: root.offersModel
        topMargin: root.sectionInsetTop
        bottomMargin: 8
        cacheBuffer: 0
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        // The arrow keys move through the offers, all of them, one offer at a time.
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Offers")
        Accessible.description: qsTr("%n offers", "", root.offerCount)
        Accessible.ignored: root.contentHidden
        Keys.onUpPressed: root.moveOfferFocus(-root.columns)
        Keys.onDownPressed: root.moveOfferFocus(root.columns)
        Keys.onLeftPressed: root.moveOfferFocus(root.rightToLeft ? 1 : -1)
        Keys.onRightPressed: root.moveOfferFocus(root.rightToLeft ? -1 : 1)
        Keys.onReturnPressed: root.activateFocusedOffer()
        Keys.onEnterPressed: root.activateFocusedOffer()
        Keys.onSpacePressed: root.activateFocusedOffer()
        onContentYChanged: root.orderRows()
        delegate: Item {
            id: offersRow
            required property int index
            required property int generation
            width: ListView.view.width
            height: root.cellSize.height
            onYChanged: root.orderRows()
            QVOfferUICollectionViewCell {
                anchors.left: parent.left
                width: root.cellSize.width
                height: parent.height
                row: offersRow.index * root.columns
                generation: offersRow.generation
                dataSource: root
            }
            Loader {
                anchors.right: parent.right
                width: root.cellSize.width
                height: parent.height
                active: root.columns > 1
                sourceComponent: QVOfferUICollectionViewCell {
                    row: offersRow.index * root.columns + 1
                    generation: offersRow.generation
                    dataSource: root
                    visible: row < root.offerCount
                }
            }
        }
        footer: Item {
            width: list.width
            height: root.showsLoadingIndicator && list.count > 0 ? 64 : 0
            Spinner {
                anchors.centerIn: parent
                visible: parent.height > 0
            }
        }
    }

    ScrollBarLine {
        list: list
    }

    Column {
        objectName: "loadingIndicator"
        anchors.centerIn: list
        spacing: 12
        visible: root.showsLoadingIndicator && list.count === 0
        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: parent.visible
        }
        Text {
            text: qsTr("Loading offers…")
            font.pixelSize: Math.round(15 * QVDevice.textScale)
            color: theme.textSecondary
        }
    }

    Text {
        id: emptyLabel
        objectName: "noOffersLabel"
        anchors.centerIn: list
        anchors.verticalCenterOffset: -24
        width: Math.min(list.width - 48, 300)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        visible: false
        Accessible.role: Accessible.StaticText
        Accessible.name: text + " " + emptyDetail.text
        Accessible.ignored: !visible || root.contentHidden
        text: qsTr("No offers right now")
        font.pixelSize: Math.round(19 * QVDevice.textScale)
        font.bold: true
        color: theme.textPrimary
    }
    Text {
        id: emptyDetail
        anchors.top: emptyLabel.bottom
        anchors.topMargin: 8
        anchors.horizontalCenter: emptyLabel.horizontalCenter
        width: Math.min(list.width - 48, 300)
        visible: emptyLabel.visible
        text: qsTr("New ways to earn arrive often. Check back soon.")
        font.pixelSize: Math.round(15 * QVDevice.textScale)
        color: theme.textSecondary
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }

    // After a failed first page: what happened and a way to try again.
    Column {
        objectName: "loadFailedView"
        anchors.centerIn: list
        anchors.verticalCenterOffset: -24
        width: Math.min(list.width - 48, 300)
        spacing: 8
        visible: root.loadFailed
        Accessible.role: Accessible.StaticText
        Accessible.name: failedTitle.text + " " + failedDetail.text
        Accessible.ignored: !visible || root.contentHidden
        Text {
            id: failedTitle
            width: parent.width
            text: qsTr("Couldn't load offers")
            wrapMode: Text.WordWrap
            font.pixelSize: Math.round(19 * QVDevice.textScale)
            font.bold: true
            color: theme.textPrimary
            horizontalAlignment: Text.AlignHCenter
        }
        Text {
            id: failedDetail
            width: parent.width
            text: qsTr("Check your connection and try again.")
            font.pixelSize: Math.round(15 * QVDevice.textScale)
            color: theme.textSecondary
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
        Item { width: 1; height: 8 }
        FlatButton {
            objectName: "retryButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Try again")
            Accessible.name: qsTr("Try loading the offers again")
            Accessible.ignored: !root.loadFailed || root.contentHidden
            onClicked: root.onRetryPressed()
        }
    }

    // Told when the user has been credited: the amount, then the offers it was for.
    Rectangle {
        id: creditNoticeView
        objectName: "creditNotice"
        anchors.top: header.bottom
        anchors.topMargin: 8
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 24, 420)
        height: noticeText.implicitHeight + noticeDetail.implicitHeight + 24
        radius: theme.cornerRadius
        // Over the list, under a phone panel: an open support centre's tabs stay in sight.
        z: 0.5
        color: theme.payoutButton
        opacity: root.creditNoticeShown ? 1 : 0
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: 200 } }
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.creditNoticeText
        Accessible.description: root.creditNoticeDetail
        Accessible.ignored: !root.creditNoticeShown || root.contentHidden

        Text {
            id: noticeText
            anchors.top: parent.top
            anchors.topMargin: 12
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            text: root.creditNoticeText
            font.pixelSize: Math.round(19 * QVDevice.textScale)
            font.bold: true
            color: theme.payoutText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Text {
            id: noticeDetail
            anchors.top: noticeText.bottom
            anchors.left: noticeText.left
            anchors.right: noticeText.right
            text: root.creditNoticeDetail
            font.pixelSize: Math.round(14 * QVDevice.textScale)
            color: theme.payoutText
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
        }
        MouseArea {
            anchors.fill: parent
            onClicked: root.dismissCreditNotice()
        }
    }
}
