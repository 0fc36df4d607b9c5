// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVTransactionsListModel.h"
#include "QVLanguage.h"
#include "QVPayoutFormatter.h"

#include <QtCore/QDateTime>

namespace {
// How the client writes a transaction's date, before its clock time.
constexpr QLatin1StringView kClientDateFormat("MM/dd/yyyy");

// In English as the client wrote it; in another language the date as that language
// writes one. The client's clock time (twelve hours, no AM or PM) stays as it is: it
// cannot be told apart from the other half of the day.
QString localTimestamp(const QString &timestamp)
{
    const QLocale locale = quorva::detail::libraryLocale();
    if (locale.language() == QLocale::English || timestamp.isEmpty())
        return timestamp;
    const QDate date = QDate::fromString(timestamp.left(kClientDateFormat.size()), kClientDateFormat);
    return date.isValid() ? locale.toString(date, QLocale::ShortFormat) + timestamp.mid(kClientDateFormat.size())
                          : timestamp;
}
} // namespace

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
        return localTimestamp(transaction.timestamp());
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
