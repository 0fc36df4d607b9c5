// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// Plain Qt Quick: a cell loads no control style.

QVOfferUICollectionViewCellBase {
    id: cell

    thumbImage: thumb
    nameLabel: name
    descriptionLabel: details
    creditsBtn: credits
    containerView: card

    // The offer reads as one unit: what it is, what to do and what it pays. The keyboard
    // stops on one offer of the list; the arrow keys go on from there.
    readonly property string spokenPayout: dataSource ? dataSource.spokenAmount(cell.payoutTitle) : cell.payoutTitle
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, %3", "an offer: its name, its task, its payout").arg(cell.offerName)
                         .arg(cell.offerDescription).arg(cell.spokenPayout)
    Accessible.ignored: !visible || (dataSource && dataSource.contentHidden)
    activeFocusOnTab: dataSource && !dataSource.contentHidden && cell.row === Math.max(0, dataSource.focusedOffer)
    Accessible.onPressAction: cell.onCreditsBtnPressed()
    Keys.onReturnPressed: cell.onCreditsBtnPressed()
    Keys.onEnterPressed: cell.onCreditsBtnPressed()
    Keys.onSpacePressed: cell.onCreditsBtnPressed()
    onActiveFocusChanged: if (activeFocus && dataSource) dataSource.offerCellFocused(cell.row)

    Rectangle {
        // A soft edge under the card.
        anchors.fill: card
        anchors.topMargin: 2
        anchors.bottomMargin: -2
        radius: card.radius
        color: theme.shade(0.08)
    }

    Rectangle {
        id: card
        objectName: "containerView"
        anchors.fill: parent
        anchors.margins: cell.cardInset
        radius: cell.cornerRadius
        border.width: cell.borderWidth
        border.color: cell.borderColor
        color: theme.card

        FocusRing {
            target: card
            shown: cell.activeFocus
            cornerRadius: card.radius
            surroundings: theme.background
        }
        Rectangle {
            anchors.fill: thumb
            radius: thumb.cornerRadius
            color: theme.separator
            visible: !thumb.hasImage
        }
        QVImageView {
            id: thumb
            objectName: "thumbImage"
            anchors.left: parent.left
            anchors.verticalCenter: cell.payoutBelowText ? texts.verticalCenter : parent.verticalCenter
            anchors.leftMargin: 12
            width: Math.min(parent.height - 24, 96)
            height: width
            cornerRadius: 14
        }

        Column {
            id: texts
            anchors.left: thumb.right
            anchors.right: cell.payoutBelowText ? parent.right : credits.left
            anchors.verticalCenter: cell.payoutBelowText ? undefined : parent.verticalCenter
            anchors.top: cell.payoutBelowText ? parent.top : undefined
            anchors.topMargin: 12
            anchors.leftMargin: 14
            anchors.rightMargin: 12
            spacing: 4

            Text {
                id: name
                objectName: "nameLabel"
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: cell.offerName
                font.pixelSize: Math.round(17 * QVDevice.textScale)
                font.bold: true
                color: theme.textPrimary
                elide: Text.ElideRight
            }
            Text {
                id: details
                objectName: "descriptionLabel"
                horizontalAlignment: Text.AlignLeft
                width: parent.width
                text: cell.offerDescription
                font.pixelSize: Math.round(14 * QVDevice.textScale)
                color: theme.textSecondary
                wrapMode: Text.WordWrap
                maximumLineCount: 3
                elide: Text.ElideRight
                lineHeight: 1.1
            }
        }

        Rectangle {
            id: credits
            objectName: "creditsBtn"
            property string text: cell.payoutTitle
            anchors.right: parent.right
            anchors.verticalCenter: cell.payoutBelowText ? undefined : parent.verticalCenter
            anchors.bottom: cell.payoutBelowText ? parent.bottom : undefined
            anchors.rightMargin: 12
            anchors.bottomMargin: 12
            width: Math.max(76, payout.implicitWidth + 24)
            height: Math.max(38, payout.implicitHeight + 8)
            radius: cell.cornerRadius
            border.width: cell.borderWidth
            border.color: cell.borderColor
            color: creditsTap.pressed ? theme.tint(theme.payoutButton, theme.payoutText, 0.15) : theme.payoutButton
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Earn %1").arg(cell.spokenPayout)
            Accessible.ignored: cell.Accessible.ignored
            Accessible.onPressAction: cell.onCreditsBtnPressed()
            Text {
                id: payout
                anchors.centerIn: parent
                text: credits.text
                font.pixelSize: Math.round(16 * QVDevice.textScale)
                font.bold: true
                color: theme.payoutText
            }
            MouseArea {
                id: creditsTap
                anchors.fill: parent
                onClicked: cell.onCreditsBtnPressed()
            }
        }
    }
}
