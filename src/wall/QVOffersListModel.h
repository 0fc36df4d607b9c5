// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVOffer.h"

#include <QtCore/QAbstractListModel>

// The offers loaded so far, in arrival order, shown as rows of one or two offers (two
// columns on a wide wall). Each row carries a generation that changes whenever what
// its cells should show may have changed: the list was emptied, or a page filled the
// row's second place. Appending keeps the scroll position; clearing resets it.
class QVOffersListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role { GenerationRole = Qt::UserRole + 1 };
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(m_offers.size()); }
    const QList<QVOffer> &offers() const { return m_offers; }
    const QVOffer &at(int offer) const { return m_offers.at(offer); }
    int columns() const { return m_columns; }
    void setColumns(int columns);
    void append(const QList<QVOffer> &offers);
    void clear();

signals:
    void countChanged();

private:
    int rowsFor(int offers) const { return (offers + m_columns - 1) / m_columns; }

    QList<QVOffer> m_offers;
    int m_columns = 1;
    int m_resets = 0;
};
