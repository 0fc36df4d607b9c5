// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import Qt5Compat.GraphicalEffects

// A frosted, extra-light blur of the item beneath.
Item {
    id: root
    objectName: "blurredView"
    property Item sourceItem

    ShaderEffectSource {
        id: snapshot
        anchors.fill: parent
        sourceItem: root.sourceItem
        live: true
        visible: false
    }
    FastBlur {
        anchors.fill: parent
        source: snapshot
        radius: 48
    }
    Rectangle {
        anchors.fill: parent
        color: theme.background
        opacity: 0.62
    }
}
