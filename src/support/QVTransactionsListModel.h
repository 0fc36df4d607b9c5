// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVTransaction.h"

#include <QtCore/QAbstractListModel>

class QVPayoutFormatter;

// The history's rows in the order delivered: offer name, display date and payout text.
class QVTransactionsListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { OfferNameRole = Qt::UserRole + 1, TimestampRole, PayoutRole };

    QVTransactionsListModel(const QVPayoutFormatter *formatter, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setTransactions(const QList<QVTransaction> &transactions);
    const QList<QVTransaction> &transactions() const { return m_transactions; }

private:
    const QVPayoutFormatter *m_formatter;
    QList<QVTransaction> m_transactions;
};
