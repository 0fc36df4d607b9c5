#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

/// Facts about the device the wall runs on. The idiom follows the primary screen (tablet
/// when its shorter side is at least 600 logical pixels) unless the host fixes it.
class QUORVAMEDIA_EXPORT QVDevice : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Phone or tablet: decides between phone panels and tablet popovers.
    Q_PROPERTY(Idiom userInterfaceIdiom READ userInterfaceIdiom NOTIFY userInterfaceIdiomChanged FINAL)
    /// True for the tablet idiom.
    Q_PROPERTY(bool tablet READ isTablet NOTIFY userInterfaceIdiomChanged FINAL)

public:
    /// The layout family of the wall's screens.
    enum class Idiom { Phone, Tablet };
    Q_ENUM(Idiom)

    /// The primary screen's shorter side, in logical pixels, from which it is a tablet.
    static constexpr int kTabletMinimumShortSide = 600;

    /// The one instance, as QML sees the singleton.
    static QVDevice *instance();
    /// Gives QML the singleton; not for hosts.
    static QVDevice *create(class QQmlEngine *, class QJSEngine *);

    ///@{
    /// See #userInterfaceIdiom. Read on the GUI thread.
    static Idiom userInterfaceIdiom();
    static bool isTablet() { return userInterfaceIdiom() == Idiom::Tablet; }
    ///@}
    /// Fixes the idiom for walls created afterwards, whatever the screen.
    static void setUserInterfaceIdiom(Idiom idiom);
    /// Back to following the primary screen.
    static void resetUserInterfaceIdiom();

    /// A short device-class name for the User-Agent; "Phone" or "Tablet" unless set.
    static QString model();
    /// Sets the device-class name sent in the User-Agent.
    static void setModel(const QString &model);

signals:
    /// Emitted when the idiom changes.
    void userInterfaceIdiomChanged();

private:
    explicit QVDevice(QObject *parent = nullptr);
};
