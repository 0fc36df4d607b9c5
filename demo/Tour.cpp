// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Tour.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>

#include <atomic>
#include <cstdio>
#include <memory>

namespace tour {

namespace {
constexpr int kPatienceMs = 20000;
Look g_look;
}

void setLook(const Look &look)
{
    g_look = look;
    QLocale::setDefault(look.locale);
    QVDevice::setTextScale(look.textScale);
}

bool spinUntil(const std::function<bool()> &condition)
{
    // Driven by hand, so deferred deletions are delivered here too.
    QDeadlineTimer deadline(kPatienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

bool nextFrame(QQuickWindow *window)
{
    // Swaps happen on the render thread; the first counted may end a frame already begun.
    auto swaps = std::make_shared<std::atomic<int>>(0);
    const auto counting = QObject::connect(window, &QQuickWindow::frameSwapped, window, [swaps] { ++*swaps; },
                                           Qt::DirectConnection);
    const bool drawn = spinUntil([&] {
        window->update();
        return *swaps >= 2;
    });
    QObject::disconnect(counting);
    return drawn;
}

Scene::~Scene()
{
    delete wall;
}

std::unique_ptr<Scene> openWall(const QString &wallId, QVDevice::Idiom idiom, const QString &user)
{
    QVDevice::setUserInterfaceIdiom(idiom);
    auto scene = std::make_unique<Scene>();
    scene->window = std::make_unique<QQuickWindow>();
    scene->window->resize(idiom == QVDevice::Idiom::Tablet ? kTablet : kPhone);
    scene->wall = QVOffersViewController::newOffersWallForPublisherId(QStringLiteral("1042"), wallId, user, nullptr);
    if (g_look.theme)
        scene->wall->setTheme(*g_look.theme);
    scene->wall->setParentItem(scene->window->contentItem());
    scene->wall->setSize(scene->window->size());
    scene->window->show();
    nextFrame(scene->window.get()); // laid out, so taps land where the buttons are
    return scene;
}

QList<QQuickItem *> itemsBelow(QQuickItem *root)
{
    QList<QQuickItem *> items;
    for (QQuickItem *child : root->childItems()) {
        items.append(child);
        items += itemsBelow(child);
    }
    return items;
}

QQuickItem *findItem(QQuickItem *root, const QString &objectName)
{
    for (QQuickItem *item : itemsBelow(root)) {
        if (item->objectName() == objectName)
            return item;
    }
    return nullptr;
}

bool picturesShown(QQuickItem *wall)
{
    int shown = 0;
    for (QQuickItem *item : itemsBelow(wall)) {
        // Pictures are the library's own items: the demo reads them as QML does.
        if (!item->inherits("QVImageView") || !item->isVisible())
            continue;
        const QRectF inWall = item->mapRectToItem(wall, item->boundingRect());
        if (!QRectF(QPointF(), wall->size()).intersects(inWall))
            continue;
        if (!item->property("hasImage").toBool())
            return false;
        ++shown;
    }
    return shown > 0;
}

bool popupOpened(QQuickItem *root, const char *objectName)
{
    const QList<QObject *> popups = root->findChildren<QObject *>(QLatin1StringView(objectName));
    return std::any_of(popups.begin(), popups.end(), [](QObject *popup) { return popup->property("opened").toBool(); });
}

void tap(QQuickWindow *window, QQuickItem *item)
{
    if (!item)
        return;
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, centre, centre, window->mapToGlobal(centre), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QGuiApplication::sendEvent(window, &event);
    }
}

static void sendKey(QQuickWindow *window, int key, const QString &text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QGuiApplication::sendEvent(window, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QGuiApplication::sendEvent(window, &up);
}

void type(QQuickWindow *window, QQuickItem *input, const QString &text)
{
    if (!input)
        return;
    input->forceActiveFocus(Qt::MouseFocusReason);
    for (const QChar c : text)
        sendKey(window, c == u'\n' ? int(Qt::Key_Return) : int(c.toUpper().unicode()), QString(c));
}

void press(QQuickWindow *window, Qt::Key key)
{
    sendKey(window, key, QString());
}

Camera::Camera(QString directory) : m_directory(std::move(directory))
{
    QDir().mkpath(m_directory);
}

void Camera::shoot(const Scene &scene, const QString &name, const std::function<bool()> &ready)
{
    if (!spinUntil(ready)) {
        fail(name + g_look.suffix + QStringLiteral(" never became ready"));
        return;
    }
    const QString path = QDir(m_directory).filePath(name + g_look.suffix + QStringLiteral(".png"));
    if (scene.window->grabWindow().save(path))
        std::printf("%s\n", qPrintable(QDir(path).absolutePath()));
    else
        fail(QStringLiteral("cannot write ") + path);
    std::fflush(stdout);
}

void Camera::fail(const QString &what)
{
    std::fprintf(stderr, "quorva-demo: %s\n", qPrintable(what));
    ++m_failures;
}

} // namespace tour
