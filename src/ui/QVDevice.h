// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

/// Facts about the device the wall runs on. Unless the host fixes the idiom, each wall
/// picks it from its own size: a tablet when its shorter side is at least
/// #kTabletMinimumShortSide points, so a phone-sized window on a large screen gets the
/// phone's panels. QML hosts fix it with QVDevice.userInterfaceIdiom = QVDevice.Tablet.
class QUORVAMEDIA_EXPORT QVDevice : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Phone or tablet, as the host fixed it, else as the primary screen suggests (a wall
    /// decides by its own size then). Writing fixes it for every wall; resetting (QML:
    /// \c undefined) lets walls decide again.
    Q_PROPERTY(Idiom userInterfaceIdiom READ userInterfaceIdiom WRITE setUserInterfaceIdiom
                   RESET resetUserInterfaceIdiom NOTIFY userInterfaceIdiomChanged FINAL)
    /// True for the tablet idiom of #userInterfaceIdiom.
    Q_PROPERTY(bool tablet READ isTablet NOTIFY userInterfaceIdiomChanged FINAL)
    /// How much larger than designed the wall draws its texts, from #kMinimumTextScale to
    /// #kMaximumTextScale; rows grow with their texts. A host forwards the platform's
    /// text-size setting here (Qt 6.4 carries none to applications); writing applies to
    /// every wall at once, open ones included.
    Q_PROPERTY(qreal textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged FINAL)

public:
    /// The layout family of the wall's screens.
    enum class Idiom { Phone, Tablet };
    Q_ENUM(Idiom)

    /// The shorter side, in logical pixels, from which a wall or screen is a tablet.
    static constexpr int kTabletMinimumShortSide = 600;
    ///@{
    /// The range of #textScale; values outside it are brought into it.
    static constexpr qreal kMinimumTextScale = 1.0;
    static constexpr qreal kMaximumTextScale = 2.0;
    ///@}

    /// The one instance, as QML sees the singleton.
    static QVDevice *instance();
    /// Gives QML the singleton; not for hosts.
    static QVDevice *create(class QQmlEngine *, class QJSEngine *);

    ///@{
    /// See #userInterfaceIdiom. Read on the GUI thread.
    static Idiom userInterfaceIdiom();
    static bool isTablet() { return userInterfaceIdiom() == Idiom::Tablet; }
    ///@}
    /// Fixes the idiom for every wall, whatever its size or the screen.
    static void setUserInterfaceIdiom(Idiom idiom);
    /// Back to each wall deciding by its own size.
    static void resetUserInterfaceIdiom();

    /// See #textScale. Read on the GUI thread.
    static qreal textScale();
    /// Sets #textScale, brought into its range; a value that is not a number is ignored.
    static void setTextScale(qreal scale);

    /// A short device-class name for the User-Agent; "Phone" or "Tablet" unless set.
    static QString model();
    /// Sets the device-class name sent in the User-Agent.
    static void setModel(const QString &model);

signals:
    /// Emitted when the idiom changes.
    void userInterfaceIdiomChanged();
    /// Emitted when the text scale changes.
    void textScaleChanged();

private:
    explicit QVDevice(QObject *parent = nullptr);
};
