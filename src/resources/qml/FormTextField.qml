// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia
import QtQuick.Controls.Basic

// A borderless single-line field for the form's cards, with a clear button while it
// has text and the focus. A screen reader hears it by its label, that it is required,
// and what is wrong with it.
TextField {
    id: field

    property string label
    // What the empty field asks for; it wraps where a placeholder would be cut.
    property string hint
    // Set by the form when sending found this field wrong; said while the field shows it.
    property string errorText
    property bool inError: false
    signal clearPressed()

    // What a screen reader says after the field's label.
    readonly property string spokenState: inError && errorText.length > 0 ? qsTr("Required, invalid: %1").arg(errorText)
                                                                         : qsTr("Required")
    Accessible.name: label
    Accessible.description: spokenState
    // The field puts its placeholder there when it is read; the state is put back.
    Accessible.onDescriptionChanged: if (Accessible.description !== spokenState) Accessible.description = spokenState
    onSpokenStateChanged: Accessible.description = spokenState
    Accessible.ignored: !visible || overlayHidden

    leftPadding: 0
    rightPadding: clear.visible ? clear.width + 4 : 0
    font.pixelSize: Math.round(16 * QVDevice.textScale)
    color: theme.textPrimary
    selectByMouse: true
    // As tall as its hint needs, typed or not, so typing never moves the form.
    implicitHeight: Math.max(contentHeight, hintText.implicitHeight) + topPadding + bottomPadding

    FieldHint {
        id: hintText
        field: field
        text: field.hint
    }
    background: Item {
        FocusRing {
            target: parent
            anchors.margins: -4
            shown: field.activeFocus
        }
    }

    ToolButton {
        id: clear
        objectName: "clearButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 28
        height: 28
        visible: field.text.length > 0 && field.activeFocus
        focusPolicy: Qt.NoFocus
        text: "\u00d7"
        font.pixelSize: Math.round(18 * QVDevice.textScale)
        Accessible.name: qsTr("Clear %1").arg(field.label)
        Accessible.ignored: !visible || overlayHidden
        Accessible.onPressAction: field.clearPressed()
        onClicked: field.clearPressed()
        background: Rectangle {
            radius: width / 2
            color: clear.down ? theme.tint(theme.separator, theme.textPrimary, 0.15) : theme.separator
        }
        contentItem: Text {
            Accessible.ignored: true
            text: clear.text
            font: clear.font
            color: theme.textSecondary
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
