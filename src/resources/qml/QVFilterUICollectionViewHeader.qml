// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick
import QuorvaMedia

QVFilterUICollectionViewHeaderBase {
    id: header

    property string title

    name: label
    implicitHeight: 44
    Accessible.role: Accessible.Heading
    Accessible.name: title
    Accessible.ignored: !visible || overlayHidden

    Text {
        id: label
        objectName: "name"
        Accessible.ignored: true // the header reads its title
        horizontalAlignment: Text.AlignLeft
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.leftMargin: 20
        anchors.bottomMargin: 8
        text: header.title
        font.capitalization: Font.AllUppercase
        font.pixelSize: Math.round(13 * QVDevice.textScale)
        font.bold: true
        font.letterSpacing: 0.8
        color: theme.accent
    }
}
