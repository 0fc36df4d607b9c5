#include "QVHistoryViewController.h"
#include "QVPayoutFormatter.h"
#include "QVTransactionsListModel.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QPointer>

QVHistoryViewController::QVHistoryViewController(QQuickItem *parent)
    : QQuickItem(parent),
      m_numberFormatter(std::make_unique<QVPayoutFormatter>()),
      m_transactions(new QVTransactionsListModel(m_numberFormatter.get(), this))
{
}

QVHistoryViewController::~QVHistoryViewController() = default;

QAbstractItemModel *QVHistoryViewController::model() const
{
    return m_transactions;
}

void QVHistoryViewController::setLoading(bool loading)
{
    if (m_isLoading == loading)
        return;
    m_isLoading = loading;
    emit isLoadingChanged();
}

void QVHistoryViewController::viewDidLoad()
{
    setLoading(true);
    QPointer<QVHistoryViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchHistory(
        [self](const QList<QVTransaction> &transactions) {
            if (!self)
                return;
            self->m_transactions->setTransactions(transactions);
            self->setLoading(false);
            self->reloadData();
        },
        [self] {
            // Nothing is reloaded and nothing is said: the empty list stays as it is.
            if (self)
                self->setLoading(false);
        });
}

void QVHistoryViewController::reloadData()
{
    numberOfItems();
}

int QVHistoryViewController::numberOfItems()
{
    const int count = m_transactions->rowCount();
    if (m_noOffersCompleted && !m_isLoading)
        m_noOffersCompleted->setVisible(count == 0);
    return count;
}
