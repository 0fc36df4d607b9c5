// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// The notice the form shows instead of the send button when it cannot take the ticket;
/// its content lives entirely in its interface file.
class QUORVAMEDIA_EXPORT QVUnableToAssist : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVUnableToAssistBase)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVUnableToAssist".
    static QString identifier() { return QStringLiteral("QVUnableToAssist"); }
};
