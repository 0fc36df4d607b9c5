#include "QVOffersListModel.h"

int QVOffersListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant QVOffersListModel::data(const QModelIndex &index, int role) const
{
    if (role != OfferRole || !index.isValid() || index.row() >= count())
        return {};
    return QVariant::fromValue(m_offers.at(index.row()));
}

QHash<int, QByteArray> QVOffersListModel::roleNames() const
{
    return {{OfferRole, "offer"}};
}

void QVOffersListModel::append(const QList<QVOffer> &offers)
{
    if (offers.isEmpty())
        return;
    beginInsertRows({}, count(), count() + int(offers.size()) - 1);
    m_offers += offers;
    endInsertRows();
    emit countChanged();
}

void QVOffersListModel::clear()
{
    beginResetModel();
    m_offers.clear();
    endResetModel();
    emit countChanged();
}
