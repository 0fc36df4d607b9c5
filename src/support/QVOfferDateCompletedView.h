// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// The completion date: a button whose title shows the chosen date ("MM/DD/YY" until one
/// is chosen) and an icon that turns to its error look when the date is missing.
class QUORVAMEDIA_EXPORT QVOfferDateCompletedView : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferDateCompletedViewBase)
    /// Outlet: the date button, set by the interface file.
    Q_PROPERTY(QQuickItem *dateBtn MEMBER m_dateBtn NOTIFY outletsChanged FINAL)
    /// Outlet: the date icon, set by the interface file.
    Q_PROPERTY(QQuickItem *dateIcon MEMBER m_dateIcon NOTIFY outletsChanged FINAL)
    /// The icon's name: "date_field_icon", or "date_field_error" when the date is missing.
    Q_PROPERTY(QString dateIconName READ dateIconName NOTIFY dateIconNameChanged FINAL)
    /// The button's title until a date is chosen; the form reads it as "no date".
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT FINAL)

public:
    /// See #placeholder.
    static constexpr QLatin1StringView kPlaceholder{"MM/DD/YY"};

    using QQuickItem::QQuickItem;
    /// The type name, "QVOfferDateCompletedView".
    static QString identifier() { return QStringLiteral("QVOfferDateCompletedView"); }

    /// See #dateBtn.
    QQuickItem *dateBtn() const { return m_dateBtn; }
    /// See #dateIconName.
    QString dateIconName() const { return m_dateIconName; }
    /// See #placeholder.
    static QString placeholder() { return kPlaceholder; }

    /// Gives the icon its error look.
    void notValid();
    /// Gives the icon its normal look.
    void dateValidated();

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void dateIconNameChanged();
    ///@}

private:
    void setDateIconName(QLatin1StringView name);

    QQuickItem *m_dateBtn = nullptr;
    QQuickItem *m_dateIcon = nullptr;
    QString m_dateIconName = QStringLiteral("date_field_icon");
};
