// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVTheme.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

// QML's way to the theme's named constructors: QVTheme.light(), QVTheme.dark(),
// QVTheme.fromBrandColor("#FFD400", QVTheme.Dark). The values are QVTheme values, as a
// wall's theme property takes them.
class QVThemeFactory : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVTheme)
    QML_SINGLETON

public:
    enum Scheme { Light = QVTheme::Light, Dark = QVTheme::Dark };
    Q_ENUM(Scheme)

    using QObject::QObject;

    Q_INVOKABLE static QVTheme light() { return QVTheme::light(); }
    Q_INVOKABLE static QVTheme dark() { return QVTheme::dark(); }
    Q_INVOKABLE static QVTheme system() { return QVTheme::system(); }
    Q_INVOKABLE static QVTheme fromBrandColor(const QColor &brand, Scheme scheme = Light)
    {
        return QVTheme::fromBrandColor(brand, QVTheme::Scheme(scheme));
    }
};
