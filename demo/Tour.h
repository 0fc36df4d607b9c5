// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtQuick/QQuickWindow>

#include <functional>
#include <memory>
#include <optional>

class SandboxProcess;

namespace tour {

constexpr QSize kPhone(390, 780);
constexpr QSize kTablet(1024, 768);

// The look every wall the tour opens takes, and what its screenshots' names end in.
struct Look
{
    std::optional<QVTheme> theme; // none: the wall follows the system
    QString suffix;
    QLocale locale{QLocale::English, QLocale::UnitedStates}; // the host's default when a wall is made
    qreal textScale = QVDevice::kMinimumTextScale;
};
void setLook(const Look &look);

// Runs the event loop until the condition holds; false when it never did.
bool spinUntil(const std::function<bool()> &condition);
// Waits until a frame that began after the call is on screen (new items laid out).
bool nextFrame(QQuickWindow *window);

// A window with one wall in it.
struct Scene
{
    std::unique_ptr<QQuickWindow> window;
    QVOffersViewController *wall = nullptr;

    ~Scene();
    template <typename T = QQuickItem>
    T *find(const char *objectName) const
    {
        return wall->findChild<T *>(QLatin1StringView(objectName));
    }
};

std::unique_ptr<Scene> openWall(const QString &wallId, QVDevice::Idiom idiom,
                                const QString &user = QStringLiteral("user-1"));

// Every item below root in the visual tree (list cells are not QObject children).
QList<QQuickItem *> itemsBelow(QQuickItem *root);
// The first item below root with that object name, in the visual tree.
QQuickItem *findItem(QQuickItem *root, const QString &objectName);
// Pictures of every cell on screen have arrived.
bool picturesShown(QQuickItem *wall);
// Whether a popup (alert or popover) of the wall with that name has finished opening.
bool popupOpened(QQuickItem *root, const char *objectName);

// Clicks the middle of item, as a finger would.
void tap(QQuickWindow *window, QQuickItem *item);
// Types text into input as key presses.
void type(QQuickWindow *window, QQuickItem *input, const QString &text);
// Presses and releases one key, as a keyboard would, to whatever has the focus.
void press(QQuickWindow *window, Qt::Key key);

// Saves screens once they show what they should; counts the ones that never did.
class Camera
{
public:
    explicit Camera(QString directory);
    void shoot(const Scene &scene, const QString &name, const std::function<bool()> &ready);
    void fail(const QString &what);
    int failures() const { return m_failures; }

private:
    QString m_directory;
    int m_failures = 0;
};

} // namespace tour
