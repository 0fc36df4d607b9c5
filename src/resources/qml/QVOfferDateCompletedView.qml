import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVOfferDateCompletedViewBase {
    id: view

    dateBtn: button
    dateIcon: icon

    height: 76

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6

        Image {
            id: icon
            objectName: "dateIcon"
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/" + view.dateIconName
            sourceSize: Qt.size(48, 48)
        }
        Text {
            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: "Completed on"
            font.pixelSize: 16
            color: "#5F5F6E"
        }
        Button {
            id: button
            objectName: "dateBtn"
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 118
            implicitHeight: 40
            text: "MM/DD/YY"
            Accessible.name: "Completion date: " + text
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            background: Rectangle {
                radius: 8
                color: button.down ? "#DDE1F7" : "#EEF0FB"
                border.width: button.visualFocus ? 2 : 0
                border.color: "#3F51D8"
            }
            contentItem: Text {
                text: button.text
                font.pixelSize: 16
                font.bold: true
                color: "#3F51D8"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
