// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "FocusChain.h"

#include <QtCore/QPointer>
#include <QtQuick/QQuickWindow>

namespace quorva::detail {

bool isDescendant(const QQuickItem *item, const QQuickItem *ancestor)
{
    for (; item; item = item->parentItem()) {
        if (item == ancestor)
            return true;
    }
    return false;
}

QQuickItem *firstFocusableIn(QQuickItem *root, const std::function<bool(QQuickItem *)> &accept)
{
    QQuickItem *next = root;
    for (int i = 0; i < 1000; ++i) {
        next = next->nextItemInFocusChain(true);
        if (!next || next == root)
            return nullptr;
        if (isDescendant(next, root) && next->isVisible() && next->isEnabled() && (!accept || accept(next)))
            return next;
    }
    return nullptr;
}

void focusFirstWhenBuilt(QQuickItem *root, int attemptsLeft, const std::function<bool(QQuickItem *)> &accept)
{
    if (!root)
        return;
    if (QQuickItem *first = firstFocusableIn(root, accept)) {
        first->forceActiveFocus(Qt::TabFocusReason);
        return;
    }
    if (attemptsLeft == 0 || !root->window())
        return;
    QPointer<QQuickItem> guard(root);
    QObject::connect(root->window(), &QQuickWindow::afterAnimating, root, [guard, attemptsLeft, accept] {
        if (guard)
            focusFirstWhenBuilt(guard, attemptsLeft - 1, accept);
    }, Qt::SingleShotConnection);
    root->window()->update();
}
} // namespace quorva::detail
