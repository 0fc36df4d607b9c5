#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVariantMap>

class QQmlEngine;
class QQuickItem;

// Creates the library's screens, cells and panels from the interface files compiled
// into the library, never from the host's files.
class QUORVAMEDIA_EXPORT QVComponentFactory
{
public:
    // The engine the factory uses when the caller has none (the C++ entry point).
    static QQmlEngine *sharedEngine();
    // Where the interface file of a type lies among the library's resources.
    static QUrl urlFor(const QString &typeName);

    // Creates the type named after an interface file ("QVFiltersViewController") with
    // the given properties set before completion. Returns nullptr and logs on failure.
    static QObject *create(QQmlEngine *engine, const QString &typeName, const QVariantMap &properties = {});

    template <typename T>
    static T *create(QQmlEngine *engine, const QString &typeName, const QVariantMap &properties = {})
    {
        QObject *object = create(engine, typeName, properties);
        T *typed = qobject_cast<T *>(object);
        if (object && !typed)
            delete object;
        return typed;
    }
};
