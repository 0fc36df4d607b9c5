// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick

// What an empty field asks for. A control's own placeholder is cut at the field's width;
// this one wraps, so a large text stays whole and the field grows to hold it. The screen
// reader hears the field's label instead.
Text {
    required property Item field

    x: field.leftPadding
    y: field.topPadding
    width: field.width - field.leftPadding - field.rightPadding
    height: field.height - field.topPadding - field.bottomPadding
    font: field.font
    color: theme.textSecondary
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: field.verticalAlignment
    wrapMode: Text.WordWrap
    visible: !field.length && !field.preeditText
    Accessible.ignored: true
}
