// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVEnterInformationViewBase {
    id: view

    nameTextField: name
    emailTextField: email
    contentView: card
    nameIcon: nameIconImage
    emailIcon: emailIconImage

    // Two fields as tall as a finger or their text, and the card around them.
    height: 42 + name.height + email.height

    FormCard {
        id: card
        objectName: "contentView"
        anchors.fill: parent
        anchors.margins: 12
        anchors.bottomMargin: 6

        QVIconImage {
            id: nameIconImage
            objectName: "nameIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: name.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.nameIconName
            color: view.nameIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        FormTextField {
            id: name
            objectName: "nameTextField"
            horizontalAlignment: TextInput.AlignLeft
            anchors.left: nameIconImage.right
            anchors.right: parent.right
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            y: 8
            height: Math.max(44, implicitHeight)
            hint: qsTr("Your name")
            label: qsTr("Name")
            inError: view.nameIconName.endsWith("_error")
            onTextEdited: view.fieldWillChange(name)
            onClearPressed: view.clearField(name)
        }
        Rectangle {
            anchors.left: name.left
            anchors.right: parent.right
            y: parent.height / 2
            height: 1
            color: theme.separator
        }
        QVIconImage {
            id: emailIconImage
            objectName: "emailIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: email.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.emailIconName
            color: view.emailIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        FormTextField {
            id: email
            objectName: "emailTextField"
            horizontalAlignment: TextInput.AlignLeft
            anchors.left: emailIconImage.right
            anchors.right: parent.right
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 8
            height: Math.max(44, implicitHeight)
            color: view.emailShowsError ? theme.error : theme.textPrimary
            hint: qsTr("Email address")
            inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
            label: qsTr("Email")
            inError: view.emailIconName.endsWith("_error")
            onTextEdited: view.fieldWillChange(email)
            onClearPressed: view.clearField(email)
        }
    }
}
