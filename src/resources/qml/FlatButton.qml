import QtQuick

// A filled button in plain Qt Quick for screens that load no control style.
Rectangle {
    id: button

    property string text
    signal clicked()

    implicitWidth: Math.max(160, label.implicitWidth + 48)
    implicitHeight: 44
    radius: 6
    color: tap.pressed ? "#2D3BB0" : "#3F51D8"
    border.width: activeFocus ? 3 : 0
    border.color: "#1B2586"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        font.pixelSize: 16
        font.bold: true
        color: "#FFFFFF"
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
