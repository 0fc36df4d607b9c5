// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QtQuick.Controls.impl

// A turning ring while something loads; the turning runs on the render thread. It turns
// only while the ring itself is visible: a hidden one would ask for frames for ever.
ColorImage {
    id: ring
    width: 36
    height: 36
    source: "icons/spinner.svg"
    color: theme.accent
    sourceSize: Qt.size(72, 72)
    RotationAnimator on rotation {
        from: 0
        to: 360
        duration: 900
        loops: Animation.Infinite
        running: ring.visible
    }
}
