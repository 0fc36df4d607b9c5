import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVOfferUICollectionViewCellBase {
    id: cell

    thumbImage: thumb
    nameLabel: name
    descriptionLabel: details
    creditsBtn: credits
    containerView: card

    Rectangle {
        // A soft edge under the card.
        anchors.fill: card
        anchors.topMargin: 2
        anchors.bottomMargin: -2
        radius: card.radius
        color: "#14000000"
    }

    Rectangle {
        id: card
        objectName: "containerView"
        anchors.fill: parent
        anchors.margins: cell.cardInset
        radius: cell.cornerRadius
        border.width: cell.borderWidth
        border.color: cell.borderColor
        color: "#FFFFFF"

        Rectangle {
            anchors.fill: thumb
            radius: thumb.cornerRadius
            color: "#ECECF2"
            visible: !thumb.hasImage
        }
        QVImageView {
            id: thumb
            objectName: "thumbImage"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: 12
            width: Math.min(parent.height - 24, 96)
            height: width
            cornerRadius: 14
        }

        Column {
            anchors.left: thumb.right
            anchors.right: credits.left
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: 14
            anchors.rightMargin: 12
            spacing: 4

            Label {
                id: name
                objectName: "nameLabel"
                width: parent.width
                text: cell.offerName
                font.pixelSize: 17
                font.bold: true
                color: "#15151E"
                elide: Text.ElideRight
            }
            Label {
                id: details
                objectName: "descriptionLabel"
                width: parent.width
                text: cell.offerDescription
                font.pixelSize: 14
                color: "#5F5F6E"
                wrapMode: Text.WordWrap
                maximumLineCount: 3
                elide: Text.ElideRight
                lineHeight: 1.1
            }
        }

        Button {
            id: credits
            objectName: "creditsBtn"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.rightMargin: 12
            implicitWidth: Math.max(76, contentItem.implicitWidth + 24)
            implicitHeight: 38
            text: cell.payoutTitle
            Accessible.name: "Earn " + cell.payoutTitle + ": " + cell.offerName
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: cell.onCreditsBtnPressed()
            background: Rectangle {
                radius: cell.cornerRadius
                border.width: cell.borderWidth
                border.color: cell.borderColor
                color: credits.pressed ? "#1E8C4E" : "#22A35A"
            }
            contentItem: Label {
                text: credits.text
                font.pixelSize: 16
                font.bold: true
                color: "#FFFFFF"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
