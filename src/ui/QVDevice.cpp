// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVDevice.h"
#include "DeviceIdiom.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtCore/qnumeric.h>

#include <optional>

namespace {
std::optional<QVDevice::Idiom> g_fixedIdiom;
QString g_model;
qreal g_textScale = QVDevice::kMinimumTextScale;

QVDevice::Idiom idiomForSize(QSizeF size)
{
    return qMin(size.width(), size.height()) >= QVDevice::kTabletMinimumShortSide ? QVDevice::Idiom::Tablet
                                                                                  : QVDevice::Idiom::Phone;
}

QVDevice::Idiom idiomFromScreen()
{
    // A console host has no screens; it gets the phone idiom.
    auto *gui = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const QScreen *screen = gui ? QGuiApplication::primaryScreen() : nullptr;
    if (!screen)
        return QVDevice::Idiom::Phone;
    return idiomForSize(screen->size());
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

qreal QVDevice::textScale()
{
    return g_textScale;
}

void QVDevice::setTextScale(qreal scale)
{
    if (qIsNaN(scale))
        return;
    scale = qBound(kMinimumTextScale, scale, kMaximumTextScale);
    if (qFuzzyCompare(scale, g_textScale))
        return;
    g_textScale = scale;
    emit instance()->textScaleChanged();
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

namespace quorva::detail {

double grownWithText(double designHeight, double textPart)
{
    return designHeight + (g_textScale - 1) * textPart;
}

int scaledPixelSize(int designSize)
{
    return qRound(designSize * g_textScale);
}

bool isTabletFor(const QQuickItem *item)
{
    if (g_fixedIdiom)
        return *g_fixedIdiom == QVDevice::Idiom::Tablet;
    // A panel not yet placed in the scene is still owned by its wall.
    const auto up = [](const QQuickItem *box) {
        return box->parentItem() ? box->parentItem() : qobject_cast<const QQuickItem *>(box->parent());
    };
    for (const QQuickItem *box = item; box; box = up(box)) {
        if (box->inherits("QVOffersViewController") && !box->size().isEmpty())
            return idiomForSize(box->size()) == QVDevice::Idiom::Tablet;
    }
    if (const QQuickWindow *window = item ? item->window() : nullptr; window && !window->size().isEmpty())
        return idiomForSize(window->size()) == QVDevice::Idiom::Tablet;
    return QVDevice::isTablet();
}

} // namespace quorva::detail
