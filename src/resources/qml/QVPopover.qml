// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.Basic

// A card under the pressed button with an upward arrow pointing at it. Panels are put
// into its host.
Popup {
    id: popover

    property real arrowX: width / 2
    readonly property real arrowHeight: 10
    property Item host: defaultHost

    modal: true
    dim: false
    padding: 0
    topPadding: arrowHeight
    contentItem: Item {
        LayoutMirroring.enabled: rightToLeft
        LayoutMirroring.childrenInherit: true
        id: defaultHost
        objectName: "popoverContent"
        clip: true
    }
    background: Item {
        Rectangle {
            anchors.fill: card
            anchors.margins: -1
            radius: card.radius + 1
            color: theme.shade(0.15)
        }
        Rectangle {
            width: 20
            height: 20
            rotation: 45
            x: popover.arrowX - width / 2
            y: popover.arrowHeight - height / 2 + 1
            color: theme.card
            border.color: theme.shade(0.15)
        }
        Rectangle {
            id: card
            anchors.fill: parent
            anchors.topMargin: popover.arrowHeight
            radius: theme.cornerRadius + 4
            color: theme.card
        }
    }
}
