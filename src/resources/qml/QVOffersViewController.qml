import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVOffersViewControllerBase {
    id: root

    headerView: header
    headerTitle: title
    closeBtn: closeButton
    filterBtn: filterButton
    supportBtn: supportButton
    collectionView: list
    noOffersLabel: emptyLabel
    filterPopover: popover
    supportPopover: supportPopover

    clip: true

    Rectangle {
        objectName: "wallBackground"
        anchors.fill: parent
        color: QVColor.colorFromHex("#F2F2F2")
    }

    GridView {
        id: list
        objectName: "collectionView"
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        model: root.offersModel
        cellWidth: root.cellSize.width
        cellHeight: root.cellSize.height
        topMargin: root.sectionInsetTop
        bottomMargin: 8
        reuseItems: true
        delegate: QVOfferUICollectionViewCell {
            required property int index
            width: GridView.view.cellWidth
            height: GridView.view.cellHeight
            row: index
            dataSource: root
            GridView.onReused: reload()
        }
        footer: Item {
            width: list.width
            height: root.loadingOffers && list.count > 0 ? 64 : 0
            BusyIndicator {
                anchors.centerIn: parent
                running: parent.height > 0
                visible: running
            }
        }
        ScrollIndicator.vertical: ScrollIndicator {}
    }

    Column {
        objectName: "loadingIndicator"
        anchors.centerIn: list
        spacing: 12
        visible: root.loadingOffers && list.count === 0
        BusyIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            running: parent.visible
        }
        Label {
            text: "Loading offers…"
            font.pixelSize: 15
            color: "#5F5F6E"
        }
    }

    Label {
        id: emptyLabel
        objectName: "noOffersLabel"
        anchors.centerIn: list
        anchors.verticalCenterOffset: -24
        visible: false
        text: "No offers right now"
        font.pixelSize: 19
        font.bold: true
        color: "#2B2B36"
    }
    Label {
        anchors.top: emptyLabel.bottom
        anchors.topMargin: 8
        anchors.horizontalCenter: emptyLabel.horizontalCenter
        width: Math.min(list.width - 48, 300)
        visible: emptyLabel.visible
        text: "New ways to earn arrive often. Check back soon."
        font.pixelSize: 15
        color: "#5F5F6E"
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
        Label {
            width: parent.width
            text: "Couldn't load offers"
            font.pixelSize: 19
            font.bold: true
            color: "#2B2B36"
            horizontalAlignment: Text.AlignHCenter
        }
        Label {
            width: parent.width
            text: "Check your connection and try again."
            font.pixelSize: 15
            color: "#5F5F6E"
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
        Item { width: 1; height: 8 }
        Button {
            id: retryButton
            objectName: "retryButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Try again"
            implicitWidth: 160
            implicitHeight: 44
            onClicked: root.onRetryPressed()
            Accessible.name: "Try loading the offers again"
            background: Rectangle {
                radius: 6
                color: retryButton.pressed ? "#2D3BB0" : "#3F51D8"
            }
            contentItem: Label {
                text: retryButton.text
                font.pixelSize: 16
                font.bold: true
                color: "#FFFFFF"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

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
            GradientStop { position: 0.0; color: "#2F2A86" }
            GradientStop { position: 1.0; color: "#4A3FC4" }
        }

        MouseArea {
            anchors.fill: parent
            onClicked: root.headerTapped()
        }

        ToolButton {
            id: closeButton
            objectName: "closeBtn"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: 6
            icon.source: "icons/close.svg"
            icon.color: "#FFFFFF"
            icon.width: 24
            icon.height: 24
            background: HeaderButtonBackground { down: closeButton.down }
            Accessible.name: "Close the offers"
            onClicked: root.onClosePressed()
        }

        Label {
            id: title
            objectName: "headerTitle"
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * 100)
            font.pixelSize: 18
            font.bold: true
            color: "#FFFFFF"
            elide: Text.ElideRight
        }

        Row {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.rightMargin: 6
            ToolButton {
                id: supportButton
                objectName: "supportBtn"
                icon.source: "icons/support.svg"
                icon.color: "#FFFFFF"
                icon.width: 24
                icon.height: 24
                background: HeaderButtonBackground { down: supportButton.down }
                Accessible.name: "Help and support"
                onClicked: root.onSupportPressed()
            }
            ToolButton {
                id: filterButton
                objectName: "filterBtn"
                icon.source: "icons/filter.svg"
                icon.color: "#FFFFFF"
                icon.width: 24
                icon.height: 24
                background: HeaderButtonBackground { down: filterButton.down }
                Accessible.name: "Sort and filter offers"
                onClicked: root.onFilterPressed()
            }
        }
    }

    QVPopover {
        id: popover
        objectName: "filterPopover"
        onOpened: root.popoverDidPresent(popover)
        onClosed: root.popoverDidDismiss(popover)
    }

    // The support centre on a tablet. A tap outside does not close it, so it carries
    // its own close button.
    QVPopover {
        id: supportPopover
        objectName: "supportPopover"
        host: supportHost
        onOpened: root.popoverDidPresent(supportPopover)
        onClosed: root.popoverDidDismiss(supportPopover)
        contentItem: Item {
            clip: true
            Label {
                anchors.verticalCenter: supportClose.verticalCenter
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Corvel Support"
                font.pixelSize: 16
                font.bold: true
                color: "#15151E"
            }
            ToolButton {
                id: supportClose
                objectName: "supportCloseBtn"
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: 4
                icon.source: "icons/close.svg"
                icon.color: "#5F5F6E"
                icon.width: 20
                icon.height: 20
                background: Rectangle {
                    implicitWidth: 36
                    implicitHeight: 36
                    radius: width / 2
                    color: supportClose.down ? "#E6E6EE" : "transparent"
                    border.width: supportClose.visualFocus ? 2 : 0
                    border.color: "#3F51D8"
                }
                Accessible.name: "Close support"
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                onClicked: root.closeSupportPopover()
            }
            Item {
                id: supportHost
                objectName: "supportPopoverContent"
                anchors.top: supportClose.bottom
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                clip: true
            }
        }
    }
}
