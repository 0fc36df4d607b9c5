import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVSupportSendButtonViewBase {
    id: view

    sendBtn: send

    height: 76

    Button {
        id: send
        objectName: "sendBtn"
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 10
        anchors.bottomMargin: 14
        text: "Send"
        Accessible.name: "Send the message"
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        background: Rectangle {
            radius: view.cornerRadius
            border.width: send.visualFocus ? 3 : view.borderWidth
            border.color: send.visualFocus ? "#1B2586" : view.borderColor
            color: send.down ? "#2D3BB0" : "#3F51D8"
        }
        contentItem: Text {
            text: send.text
            font.pixelSize: 17
            font.bold: true
            color: "#FFFFFF"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
