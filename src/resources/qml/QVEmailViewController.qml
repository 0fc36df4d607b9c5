// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic
import QuorvaMedia

QVEmailViewControllerBase {
    id: form

    scrollView: scroll
    datePickerView: datePanel
    uiDatePicker: picker
    dateDoneBtn: done

    Flickable {
        id: scroll
        objectName: "scrollView"
        anchors.fill: parent
        topMargin: form.topInset
        bottomMargin: form.keyboardInset
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        onContentYChanged: form.scrollViewDidScroll()
        ScrollIndicator.vertical: ScrollIndicator { bottomPadding: form.keyboardInset; Accessible.ignored: true }
    }

    // Slides up from the bottom of the form when the date button is pressed.
    Rectangle {
        id: datePanel
        objectName: "datePickerView"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 250
        opacity: 0
        visible: opacity > 0
        color: theme.card
        // The question names the panel of wheels it asks about.
        Accessible.role: Accessible.Grouping
        Accessible.name: dateQuestion.text
        Accessible.ignored: !visible || overlayHidden

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            height: 1
            color: theme.separator
        }
        Text {
            id: dateQuestion
            horizontalAlignment: Text.AlignLeft
            anchors.left: parent.left
            anchors.right: done.left
            anchors.leftMargin: 16
            anchors.rightMargin: 8
            anchors.verticalCenter: done.verticalCenter
            text: qsTr("When did you complete it?")
            font.pixelSize: Math.round(15 * QVDevice.textScale)
            font.bold: true
            color: theme.textPrimary
            wrapMode: Text.Wrap
        }
        Button {
            id: done
            objectName: "dateDoneBtn"
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.rightMargin: 8
            flat: true
            implicitWidth: Math.max(44, implicitContentWidth + leftPadding + rightPadding)
            implicitHeight: Math.max(44, implicitContentHeight + topPadding + bottomPadding)
            text: qsTr("Done")
            Accessible.name: qsTr("Done choosing the date")
            Accessible.ignored: !visible || overlayHidden
            Accessible.onPressAction: clicked()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: form.onDateDonePressed()
            background: Item {
                FocusRing {
                    shown: done.visualFocus
                }
            }
            contentItem: Text {
                Accessible.ignored: true
                text: done.text
                font.pixelSize: Math.round(16 * QVDevice.textScale)
                font.bold: true
                color: theme.accent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }

        QVDatePickerBase {
            id: picker
            objectName: "uiDatePicker"
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: done.bottom
            anchors.bottom: parent.bottom
            anchors.margins: 8
            // Fewer, taller rows for a large text.
            readonly property int rows: QVDevice.textScale > 1.5 ? 3 : 5

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width
                height: parent.height / picker.rows - 2
                radius: 8
                color: theme.tint(theme.card, theme.textPrimary, 0.06)
            }
            Row {
                anchors.fill: parent
                DateWheel {
                    width: parent.width * 0.42
                    height: parent.height
                    rows: picker.rows
                    model: picker.monthNames
                    currentIndex: picker.monthIndex
                    valueText: picker.monthNames[picker.monthIndex]
                    onPicked: index => picker.pickMonth(index)
                    delegate: wheelRow
                    Accessible.name: qsTr("Month")
                }
                DateWheel {
                    width: parent.width * 0.2
                    height: parent.height
                    rows: picker.rows
                    model: 31
                    currentIndex: picker.dayIndex
                    valueText: picker.dayIndex + 1
                    onPicked: index => picker.pickDay(index)
                    delegate: Text {
                        required property int index
                        text: index + 1
                        font.pixelSize: Math.round(17 * QVDevice.textScale)
                        color: theme.textPrimary
                        opacity: 1.0 - Math.abs(Tumbler.displacement) / ((picker.rows + 1) / 2)
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                    }
                    Accessible.name: qsTr("Day")
                }
                DateWheel {
                    width: parent.width * 0.38
                    height: parent.height
                    rows: picker.rows
                    model: picker.years
                    wrap: false
                    currentIndex: picker.yearIndex
                    firstValue: picker.years[0]
                    valueText: picker.years[picker.yearIndex]
                    onPicked: index => picker.pickYear(index)
                    delegate: wheelRow
                    Accessible.name: qsTr("Year")
                }
            }
        }
    }

    // A row of the month and year wheels, in the theme's text colour.
    Component {
        id: wheelRow
        Text {
            required property int index
            required property var modelData
            text: modelData
            font.pixelSize: Math.round(17 * QVDevice.textScale)
            color: theme.textPrimary
            opacity: 1.0 - Math.abs(Tumbler.displacement) / ((picker.rows + 1) / 2)
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
