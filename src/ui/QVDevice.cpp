#include "QVDevice.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlEngine>

#include <optional>

namespace {
std::optional<QVDevice::Idiom> g_fixedIdiom;
QString g_model;

QVDevice::Idiom idiomFromScreen()
{
    // A console host has no screens; it gets the phone idiom.
    auto *gui = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const QScreen *screen = gui ? QGuiApplication::primaryScreen() : nullptr;
    if (!screen)
        return QVDevice::Idiom::Phone;
    const QSize size = screen->size();
    return qMin(size.width(), size.height()) >= QVDevice::kTabletMinimumShortSide
        ? QVDevice::Idiom::Tablet
        : QVDevice::Idiom::Phone;
}
} // namespace

QVDevice::QVDevice(QObject *parent) : QObject(parent) {}

QVDevice *QVDevice::instance()
{
    static QVDevice *device = new QVDevice(QCoreApplication::instance());
    return device;
}

QVDevice *QVDevice::create(QQmlEngine *, QJSEngine *)
{
    QVDevice *device = instance();
    QQmlEngine::setObjectOwnership(device, QQmlEngine::CppOwnership);
    return device;
}

QVDevice::Idiom QVDevice::userInterfaceIdiom()
{
    return g_fixedIdiom.value_or(idiomFromScreen());
}

void QVDevice::setUserInterfaceIdiom(Idiom idiom)
{
    if (g_fixedIdiom == idiom)
        return;
    g_fixedIdiom = idiom;
    emit instance()->userInterfaceIdiomChanged();
}

void QVDevice::resetUserInterfaceIdiom()
{
    if (!g_fixedIdiom)
        return;
    g_fixedIdiom.reset();
    emit instance()->userInterfaceIdiomChanged();
}

QString QVDevice::model()
{
    if (!g_model.isEmpty())
        return g_model;
    return isTablet() ? QStringLiteral("Tablet") : QStringLiteral("Phone");
}

void QVDevice::setModel(const QString &model)
{
    g_model = model;
}
