// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// One credited offer of the user's history: name, date, payout, a status label and a
/// marker whose right-hand corners are rounded.
class QUORVAMEDIA_EXPORT QVTransactionCollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVTransactionCollectionViewCellBase)
    /// Outlet: the payout label, set by the interface file.
    Q_PROPERTY(QQuickItem *payoutLabel MEMBER m_payoutLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the status label, set by the interface file.
    Q_PROPERTY(QQuickItem *statusLabel MEMBER m_statusLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the date label, set by the interface file.
    Q_PROPERTY(QQuickItem *dateLabel MEMBER m_dateLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the offername label, set by the interface file.
    Q_PROPERTY(QQuickItem *offernameLabel MEMBER m_offernameLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the marker view, set by the interface file.
    Q_PROPERTY(QQuickItem *markerView MEMBER m_markerView NOTIFY outletsChanged FINAL)
    /// The corner radius of the amount's marker, in points.
    Q_PROPERTY(qreal markerCornerRadius READ markerCornerRadius CONSTANT FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The type name, "QVTransactionCollectionViewCell".
    static QString identifier() { return QStringLiteral("QVTransactionCollectionViewCell"); }
    /// See #markerCornerRadius.
    static qreal markerCornerRadius() { return 10; }

signals:
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();

private:
    QQuickItem *m_payoutLabel = nullptr;
    QQuickItem *m_statusLabel = nullptr;
    QQuickItem *m_dateLabel = nullptr;
    QQuickItem *m_offernameLabel = nullptr;
    QQuickItem *m_markerView = nullptr;
};
