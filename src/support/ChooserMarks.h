// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtQuick/QQuickItem>

#include <span>

namespace quorva::detail {

struct ChooserRow
{
    QQuickItem *button;
    QQuickItem *checkmark;
};

// The one rule of the checkmark choosers: a tap on a row whose mark is hidden shows that
// mark and hides the others; a tap on the chosen row (or on no row) changes nothing.
// True when the choice changed.
inline bool markChosenRow(std::span<const ChooserRow> rows, const QQuickItem *tapped)
{
    for (const ChooserRow &row : rows) {
        if (!tapped || row.button != tapped || !row.checkmark || row.checkmark->isVisible())
            continue;
        for (const ChooserRow &other : rows) {
            if (other.checkmark)
                other.checkmark->setVisible(other.button == tapped);
        }
        return true;
    }
    return false;
}

} // namespace quorva::detail
