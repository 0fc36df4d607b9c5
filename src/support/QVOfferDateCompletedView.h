#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// The completion date: a button whose title shows the chosen date ("MM/DD/YY" until one
// is chosen) and an icon that turns to its error look when the date is missing.
class QUORVAMEDIA_EXPORT QVOfferDateCompletedView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferDateCompletedViewBase)
    Q_PROPERTY(QQuickItem *dateBtn MEMBER m_dateBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *dateIcon MEMBER m_dateIcon NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QString dateIconName READ dateIconName NOTIFY dateIconNameChanged FINAL)
    // The button's title until a date is chosen; the form reads it as "no date".
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT FINAL)

public:
    static constexpr QLatin1StringView kPlaceholder{"MM/DD/YY"};

    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVOfferDateCompletedView"); }

    QQuickItem *dateBtn() const { return m_dateBtn; }
    QString dateIconName() const { return m_dateIconName; }
    static QString placeholder() { return kPlaceholder; }

    void notValid();
    void dateValidated();

signals:
    void outletsChanged();
    void dateIconNameChanged();

private:
    void setDateIconName(QLatin1StringView name);

    QQuickItem *m_dateBtn = nullptr;
    QQuickItem *m_dateIcon = nullptr;
    QString m_dateIconName = QStringLiteral("date_field_icon");
};
