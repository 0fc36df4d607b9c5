#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

// Facts about the device the wall runs on. The idiom follows the primary screen (tablet
// when its shorter side is at least 600 logical pixels) unless the host fixes it.
class QUORVAMEDIA_EXPORT QVDevice : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Idiom userInterfaceIdiom READ userInterfaceIdiom NOTIFY userInterfaceIdiomChanged FINAL)
    Q_PROPERTY(bool tablet READ isTablet NOTIFY userInterfaceIdiomChanged FINAL)

public:
    enum class Idiom { Phone, Tablet };
    Q_ENUM(Idiom)

    static constexpr int kTabletMinimumShortSide = 600;

    static QVDevice *instance();
    static QVDevice *create(class QQmlEngine *, class QJSEngine *);

    static Idiom userInterfaceIdiom();
    static bool isTablet() { return userInterfaceIdiom() == Idiom::Tablet; }
    static void setUserInterfaceIdiom(Idiom idiom);
    // Back to following the primary screen.
    static void resetUserInterfaceIdiom();

    // A short device-class name for the User-Agent; "Phone" or "Tablet" unless set.
    static QString model();
    static void setModel(const QString &model);

signals:
    void userInterfaceIdiomChanged();

private:
    explicit QVDevice(QObject *parent = nullptr);
};
