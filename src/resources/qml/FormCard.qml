import QtQuick

// The white card every piece of the ticket form sits on.
Rectangle {
    radius: 10
    color: "#FFFFFF"
    border.width: 1
    border.color: "#E3E3EA"
}
