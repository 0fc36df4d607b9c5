// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVComponentFactory.h"
#include "QuorvaLog.h"
#include "QVTheme.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QUrl>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

namespace {
constexpr QLatin1StringView kModuleRoot("qrc:/qt-project.org/imports/QuorvaMedia/");

// Compiling a component once per engine keeps opening a panel cheap.
QQmlComponent *componentFor(QQmlEngine *engine, const QString &typeName)
{
    static QHash<QPair<QQmlEngine *, QString>, QQmlComponent *> components;
    const auto key = qMakePair(engine, typeName);
    if (QQmlComponent *existing = components.value(key))
        return existing;
    auto *component = new QQmlComponent(engine, QVComponentFactory::urlFor(typeName),
                                        QQmlComponent::PreferSynchronous, engine);
    QObject::connect(engine, &QObject::destroyed, [key] { components.remove(key); });
    components.insert(key, component);
    return component;
}
} // namespace

QUrl QVComponentFactory::urlFor(const QString &typeName)
{
    return QUrl(kModuleRoot + typeName + QStringLiteral(".qml"));
}

namespace {
bool g_sharedEngineMade = false;
}

bool QVComponentFactory::hasSharedEngine()
{
    return g_sharedEngineMade;
}

QQmlEngine *QVComponentFactory::sharedEngine()
{
    static QQmlEngine *engine = [] {
        g_sharedEngineMade = true;
        auto *e = new QQmlEngine(QCoreApplication::instance());
        // What a screen made outside any wall reads; inside a wall the wall's own theme
        // is found first.
        e->rootContext()->setContextProperty(QStringLiteral("theme"), QVariant::fromValue(QVTheme::light()));
        e->rootContext()->setContextProperty(QStringLiteral("rightToLeft"), false);
        return e;
    }();
    return engine;
}

QObject *QVComponentFactory::create(QQmlEngine *engine, const QString &typeName, const QVariantMap &properties,
                                    QQmlContext *context)
{
    if (!engine)
        engine = sharedEngine();
    QQmlComponent *component = componentFor(engine, typeName);
    // Creating from a component with errors must not be attempted: report instead.
    QObject *object = component->isReady()
        ? component->createWithInitialProperties(properties, context ? context : engine->rootContext())
        : nullptr;
    if (!object) {
        qCWarning(lcQuorvaDiagnostics).noquote() << "cannot create" << typeName << ":" << component->errorString();
        return nullptr;
    }
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    return object;
}
