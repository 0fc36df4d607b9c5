// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// A collapsed FAQ row: the question only, always the same height.
class QUORVAMEDIA_EXPORT QVQuestionCollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVQuestionCollectionViewCellBase)
    /// Outlet: the question label, set by the interface file.
    Q_PROPERTY(QQuickItem *questionLabel MEMBER m_questionLabel NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVQuestionCollectionViewCell".
    static QString identifier() { return QStringLiteral("QVQuestionCollectionViewCell"); }

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QQuickItem *m_questionLabel = nullptr;
};
