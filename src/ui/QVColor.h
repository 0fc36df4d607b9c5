// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

/// Design colours written as hexadecimal text. Tolerant on purpose: "#" anywhere is
/// ignored, symbols before the number are skipped, only the low 24 bits count, and
/// text that holds no number yields an invalid colour rather than an error.
class QUORVAMEDIA_EXPORT QVColor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The colour the text names, such as "#A53838" or "0xF2F2F2"; invalid when it holds
    /// no number.
    Q_INVOKABLE static QColor colorFromHex(const QString &text);
};
