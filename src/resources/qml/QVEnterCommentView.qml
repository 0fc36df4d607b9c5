// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVEnterCommentViewBase {
    id: view

    commentInputField: area
    charCount: counter
    commentIcon: icon

    height: 176

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 0
        anchors.bottomMargin: 6

        QVIconImage {
            id: icon
            objectName: "commentIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            y: 16
            width: 24
            height: 24
            source: "icons/" + view.commentIconName
            color: view.commentIconName.endsWith("_error") ? theme.error : theme.textSecondary
        }
        TextArea {
            id: area
            objectName: "commentInputField"
            horizontalAlignment: TextEdit.AlignLeft
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: counter.top
            anchors.leftMargin: 10
            anchors.rightMargin: 12
            anchors.topMargin: 6
            leftPadding: 0
            rightPadding: 0
            font.pixelSize: Math.round(16 * QVDevice.textScale)
            color: theme.textPrimary
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            FieldHint {
                field: area
                text: qsTr("Tell us what happened")
            }
            // Set by the form when sending found the message missing.
            property string errorText
            readonly property bool inError: view.commentIconName.endsWith("_error")
            background: Item {
                FocusRing {
                    target: parent
                    anchors.margins: -4
                    shown: area.activeFocus
                }
            }
            // What a screen reader says after the field's label.
            readonly property string spokenState: inError && errorText.length > 0
                                                  ? qsTr("Required, invalid: %1").arg(errorText) : qsTr("Required")
            Accessible.name: qsTr("Message")
            Accessible.description: spokenState
            // The field puts its placeholder there when it is read; the state is put back.
            Accessible.onDescriptionChanged: if (Accessible.description !== spokenState) Accessible.description = spokenState
            onSpokenStateChanged: Accessible.description = spokenState
            Accessible.ignored: !visible || overlayHidden
            onTextChanged: view.commentTextChanged()
            // Tab leaves the message instead of typing a tab into it.
            Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
        Text {
            id: counter
            objectName: "charCount"
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.rightMargin: 14
            anchors.bottomMargin: 10
            text: view.counterText
            font.pixelSize: Math.round(13 * QVDevice.textScale)
            color: theme.textSecondary
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("%1 characters left").arg(text)
            Accessible.ignored: !visible || overlayHidden
        }
    }
}
