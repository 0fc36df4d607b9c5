// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVEnterOfferTitleViewBase {
    id: view

    offerNameField: field
    nameIcon: icon

    height: 24 + field.height

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 0
        anchors.bottomMargin: 6

        QVIconImage {
            id: icon
            objectName: "nameIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.nameIconName
            color: view.nameIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        FormTextField {
            id: field
            objectName: "offerNameField"
            horizontalAlignment: TextInput.AlignLeft
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            height: Math.max(44, implicitHeight)
            hint: qsTr("Name of the offer")
            label: qsTr("Offer")
            inError: view.nameIconName.endsWith("_error")
            onTextEdited: view.fieldWillChange(field)
            onClearPressed: view.clearField(field)
        }
    }
}
