// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

import QtQuick

// The white card every piece of the ticket form sits on.
Rectangle {
    radius: theme.cornerRadius
    color: theme.card
    border.width: 1
    border.color: theme.separator
}
