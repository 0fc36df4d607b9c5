import QtQuick

// A round icon button of the wall's header. Plain Qt Quick, so the wall's first screen
// loads no control style.
Item {
    id: button

    property url icon
    property string accessibleName
    signal clicked()

    implicitWidth: 44
    implicitHeight: 44
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: tap.pressed ? "#33FFFFFF" : "transparent"
        border.width: button.activeFocus ? 2 : 0
        border.color: "#FFFFFF"
    }
    Image {
        anchors.centerIn: parent
        width: 24
        height: 24
        source: button.icon
        sourceSize: Qt.size(48, 48)
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
