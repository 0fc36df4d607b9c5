import QtQuick

// The round press highlight of a header button.
Rectangle {
    property bool down: false
    implicitWidth: 44
    implicitHeight: 44
    radius: width / 2
    color: down ? "#33FFFFFF" : "transparent"
}
