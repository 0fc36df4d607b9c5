// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVariantMap>

class QQmlContext;
class QQmlEngine;
class QQuickItem;

// Creates the library's screens, cells and panels from the interface files compiled
// into the library, never from the host's files.
class QVComponentFactory
{
public:
    // The engine the factory uses when the caller has none (the C++ entry point).
    static QQmlEngine *sharedEngine();
    // True once sharedEngine() has made the engine.
    static bool hasSharedEngine();
    // Where the interface file of a type lies among the library's resources.
    static QUrl urlFor(const QString &typeName);

    // Creates the type named after an interface file ("QVFiltersViewController") with
    // the given properties set before completion. Returns nullptr and logs on failure.
    // Made in the context of the item that creates it, an object sees that item's wall
    // (its theme) as the wall's own children do.
    static QObject *create(QQmlEngine *engine, const QString &typeName, const QVariantMap &properties = {},
                           QQmlContext *context = nullptr);

    template <typename T>
    static T *create(QQmlEngine *engine, const QString &typeName, const QVariantMap &properties = {},
                     QQmlContext *context = nullptr)
    {
        QObject *object = create(engine, typeName, properties, context);
        T *typed = qobject_cast<T *>(object);
        if (object && !typed)
            delete object;
        return typed;
    }
};
