import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVEnterCommentViewBase {
    id: view

    commentInputField: area
    charCount: counter
    commentIcon: icon

    height: 176

    FormCard {
        anchors.fill: parent
        anchors.margins: 12
        anchors.topMargin: 0
        anchors.bottomMargin: 6

        Image {
            id: icon
            objectName: "commentIcon"
            x: 14
            y: 16
            width: 24
            height: 24
            source: "icons/" + view.commentIconName
            sourceSize: Qt.size(48, 48)
        }
        TextArea {
            id: area
            objectName: "commentInputField"
            anchors.left: icon.right
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: counter.top
            anchors.leftMargin: 10
            anchors.rightMargin: 12
            anchors.topMargin: 6
            leftPadding: 0
            rightPadding: 0
            font.pixelSize: 16
            color: "#15151E"
            placeholderText: "Tell us what happened"
            placeholderTextColor: "#9A9AA8"
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            background: Item {}
            Accessible.name: "Your message"
            onTextChanged: view.commentTextChanged()
            // Tab leaves the message instead of typing a tab into it.
            Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
        Text {
            id: counter
            objectName: "charCount"
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.rightMargin: 14
            anchors.bottomMargin: 10
            text: view.counterText
            font.pixelSize: 13
            color: "#8A8A99"
            Accessible.role: Accessible.StaticText
            Accessible.name: text + " characters left"
        }
    }
}
