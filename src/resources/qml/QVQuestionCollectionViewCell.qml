import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVQuestionCollectionViewCellBase {
    id: cell

    property string question
    signal selected()

    questionLabel: label

    AbstractButton {
        id: card
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6
        focusPolicy: Qt.StrongFocus
        Accessible.role: Accessible.Button
        Accessible.name: cell.question
        Accessible.description: "Shows the answer"
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: cell.selected()
        background: Rectangle {
            radius: 10
            color: card.down ? "#F4F4F8" : "#FFFFFF"
            border.width: card.visualFocus ? 2 : 1
            border.color: card.visualFocus ? "#3F51D8" : "#E3E3EA"
        }
        contentItem: Item {
            Text {
                id: label
                objectName: "questionLabel"
                anchors.left: parent.left
                anchors.right: chevron.left
                anchors.verticalCenter: parent.verticalCenter
                anchors.leftMargin: 16
                anchors.rightMargin: 8
                text: cell.question
                font.pixelSize: 16
                font.bold: true
                color: "#15151E"
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
            }
            Image {
                id: chevron
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                source: "icons/chevron.svg"
                sourceSize: Qt.size(40, 40)
            }
        }
    }
}
