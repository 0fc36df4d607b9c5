// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic

// One wheel of the date picker. The box speaks for the wheel to a screen reader, as a
// value stepped up and down: this Qt ignores an accessible role set on a control.
Item {
    id: wheel
    property alias model: tumbler.model
    property alias delegate: tumbler.delegate
    property alias currentIndex: tumbler.currentIndex
    property alias wrap: tumbler.wrap
    property alias rows: tumbler.visibleItemCount
    // What the wheel shows, as a screen reader says it ("March").
    property string valueText
    // The number of the first row: 1 for the month and the day, the first year.
    property int firstValue: 1
    // The value, its range and its step, as a screen reader reads a spin box's.
    readonly property real value: firstValue + tumbler.currentIndex
    readonly property real minimumValue: firstValue
    readonly property real maximumValue: firstValue + Math.max(0, tumbler.count - 1)
    readonly property real stepSize: 1
    signal picked(int index)

    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.description: wheel.valueText
    Accessible.ignored: !visible || overlayHidden
    Keys.onUpPressed: tumbler.currentIndex = Math.max(tumbler.currentIndex - 1, 0)
    Keys.onDownPressed: tumbler.currentIndex = Math.min(tumbler.currentIndex + 1, tumbler.count - 1)
    Accessible.onIncreaseAction: tumbler.currentIndex = Math.min(tumbler.currentIndex + 1, tumbler.count - 1)
    Accessible.onDecreaseAction: tumbler.currentIndex = Math.max(tumbler.currentIndex - 1, 0)

    FocusRing {
        shown: wheel.activeFocus
    }
    Tumbler {
        id: tumbler
        anchors.fill: parent
        visibleItemCount: 5
        Accessible.ignored: true
        onCurrentIndexChanged: wheel.picked(currentIndex)
    }
}
