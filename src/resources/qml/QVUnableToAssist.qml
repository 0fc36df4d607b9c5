import QtQuick
import QuorvaMedia

// Shown in the send button's place, at its height.
QVUnableToAssistBase {
    height: 120
    clip: true

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 4
        anchors.bottomMargin: 6
        radius: 10
        color: "#EEF0FB"

        Image {
            id: icon
            x: 14
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            source: "icons/info.svg"
            sourceSize: Qt.size(48, 48)
        }
        Column {
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            Text {
                width: parent.width
                text: "Rewards can take up to 24 hours"
                font.pixelSize: 15
                font.bold: true
                color: "#23236A"
                elide: Text.ElideRight
            }
            Text {
                width: parent.width
                text: "Please check back tomorrow; we can't look into it sooner."
                font.pixelSize: 13
                color: "#4B4B7A"
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }
    }
}
