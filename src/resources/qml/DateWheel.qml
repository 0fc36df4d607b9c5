// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls

// One wheel of the date picker. The box speaks for the wheel to a screen reader, as a
// value stepped up and down: this Qt ignores an accessible role set on a control.
Item {
    id: wheel
    property alias model: tumbler.model
    property alias delegate: tumbler.delegate
    property alias currentIndex: tumbler.currentIndex
    property alias wrap: tumbler.wrap
    // What the wheel shows, as a screen reader says it.
    property string value
    signal picked(int index)

    Accessible.role: Accessible.SpinBox
    Accessible.description: wheel.value
    Accessible.onIncreaseAction: tumbler.currentIndex = Math.min(tumbler.currentIndex + 1, tumbler.count - 1)
    Accessible.onDecreaseAction: tumbler.currentIndex = Math.max(tumbler.currentIndex - 1, 0)

    Tumbler {
        id: tumbler
        anchors.fill: parent
        visibleItemCount: 5
        Accessible.ignored: true
        onCurrentIndexChanged: wheel.picked(currentIndex)
    }
}
