import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVFilterUICollectionViewCellBase {
    id: cell

    property string title
    signal pressed()

    name: label
    checkmarkImage: check

    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: cell.pressed()
    Keys.onReturnPressed: cell.pressed()
    Keys.onEnterPressed: cell.pressed()
    Keys.onSpacePressed: cell.pressed()

    Rectangle {
        anchors.fill: parent
        color: tap.pressed ? "#14000000" : "transparent"
        border.width: cell.activeFocus ? 2 : 0
        border.color: "#3F51D8"
    }
    Label {
        id: label
        objectName: "name"
        anchors.left: parent.left
        anchors.right: check.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 20
        anchors.rightMargin: 8
        text: cell.title
        font.pixelSize: 16
        font.bold: cell.selected
        color: "#15151E"
        elide: Text.ElideRight
    }
    Image {
        id: check
        objectName: "checkmarkImage"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: 20
        width: 22
        height: 22
        source: "icons/checkmark.svg"
        sourceSize: Qt.size(44, 44)
        visible: false
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: 20
        height: 1
        color: "#1F000000"
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: cell.pressed()
    }
}
