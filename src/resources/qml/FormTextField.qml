import QtQuick
import QtQuick.Controls.Basic

// A borderless single-line field for the form's cards, with a clear button while it
// has text and the focus.
TextField {
    id: field

    signal clearPressed()

    leftPadding: 0
    rightPadding: clear.visible ? clear.width + 4 : 0
    font.pixelSize: 16
    color: "#15151E"
    placeholderTextColor: "#9A9AA8"
    selectByMouse: true
    background: Item {}

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
        font.pixelSize: 18
        Accessible.name: "Clear " + field.Accessible.name
        onClicked: field.clearPressed()
        background: Rectangle {
            radius: width / 2
            color: clear.down ? "#C9C9D3" : "#E3E3EA"
        }
        contentItem: Text {
            text: clear.text
            font: clear.font
            color: "#5F5F6E"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
