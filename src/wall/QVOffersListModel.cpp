// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOffersListModel.h"

int QVOffersListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rowsFor(count());
}

QVariant QVOffersListModel::data(const QModelIndex &index, int role) const
{
    if (role != GenerationRole || !index.isValid() || index.row() >= rowCount())
        return {};
    // A partly filled last row differs from the same row once it is full.
    const int filled = qMin(m_columns, count() - index.row() * m_columns);
    return m_resets * (m_columns + 1) + filled;
}

QHash<int, QByteArray> QVOffersListModel::roleNames() const
{
    return {{GenerationRole, "generation"}};
}

void QVOffersListModel::setColumns(int columns)
{
    columns = qMax(1, columns);
    if (m_columns == columns)
        return;
    beginResetModel();
    m_columns = columns;
    ++m_resets;
    endResetModel();
}

void QVOffersListModel::append(const QList<QVOffer> &offers)
{
    if (offers.isEmpty())
        return;
    const int rowsBefore = rowCount();
    const bool lastRowPartial = count() % m_columns != 0;
    const int rowsAfter = rowsFor(count() + int(offers.size()));
    if (rowsAfter > rowsBefore)
        beginInsertRows({}, rowsBefore, rowsAfter - 1);
    m_offers += offers;
    if (rowsAfter > rowsBefore)
        endInsertRows();
    if (lastRowPartial) {
        const QModelIndex filledRow = index(rowsBefore - 1);
        emit dataChanged(filledRow, filledRow, {GenerationRole});
    }
    emit countChanged();
}

void QVOffersListModel::clear()
{
    beginResetModel();
    m_offers.clear();
    ++m_resets;
    endResetModel();
    emit countChanged();
}
