// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

// A turning ring while something loads; the turning runs on the render thread. It turns
// only while the ring itself is visible: a hidden one would ask for frames for ever.
QVIconImage {
    id: ring
    width: 36
    height: 36
    source: "icons/spinner.svg"
    color: theme.accent
    RotationAnimator on rotation {
        from: 0
        to: 360
        duration: 900
        loops: Animation.Infinite
        running: ring.visible
    }
}
