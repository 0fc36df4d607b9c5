#pragma once

#include "quorvamedia_global.h"
#include "QVOffer.h"

#include <QtCore/QAbstractListModel>

// The offers loaded so far, in arrival order. Appending keeps the list's scroll
// position; clearing resets it.
class QUORVAMEDIA_EXPORT QVOffersListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role { OfferRole = Qt::UserRole + 1 };
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(m_offers.size()); }
    const QList<QVOffer> &offers() const { return m_offers; }
    const QVOffer &at(int row) const { return m_offers.at(row); }
    void append(const QList<QVOffer> &offers);
    void clear();

signals:
    void countChanged();

private:
    QList<QVOffer> m_offers;
};
