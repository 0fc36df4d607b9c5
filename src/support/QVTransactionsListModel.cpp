#include "QVTransactionsListModel.h"
#include "QVPayoutFormatter.h"

QVTransactionsListModel::QVTransactionsListModel(const QVPayoutFormatter *formatter, QObject *parent)
    : QAbstractListModel(parent), m_formatter(formatter)
{
}

int QVTransactionsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_transactions.size());
}

QVariant QVTransactionsListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_transactions.size())
        return {};
    const QVTransaction &transaction = m_transactions.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case OfferNameRole:
        return transaction.offerName();
    case TimestampRole:
        return transaction.timestamp();
    case PayoutRole:
        // Always a "+", whatever the sign: -5 reads "+-5".
        return m_formatter->payoutTitle(transaction.currencyAdjustment());
    default:
        return {};
    }
}

QHash<int, QByteArray> QVTransactionsListModel::roleNames() const
{
    return {{OfferNameRole, "offerName"}, {TimestampRole, "timestamp"}, {PayoutRole, "payout"}};
}

void QVTransactionsListModel::setTransactions(const QList<QVTransaction> &transactions)
{
    beginResetModel();
    m_transactions = transactions;
    endResetModel();
}
