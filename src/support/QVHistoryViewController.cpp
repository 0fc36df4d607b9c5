// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVHistoryViewController.h"
#include "QVHistoryViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "DeviceIdiom.h"
#include "QVDevice.h"
#include "QVOfferUICollectionViewCell.h"
#include "QVPayoutFormatter.h"
#include "QVTransactionsListModel.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QPointer>

QVHistoryViewController::QVHistoryViewController(QQuickItem *parent)
    : QQuickItem(parent), m_d(std::make_unique<QVHistoryViewControllerPrivate>())
{
    Q_D(QVHistoryViewController);
    d->m_numberFormatter = std::make_unique<QVPayoutFormatter>();
    d->m_transactions = new QVTransactionsListModel(d->m_numberFormatter.get(), this);
    connect(QVDevice::instance(), &QVDevice::textScaleChanged, this, &QVHistoryViewController::itemHeightChanged);
}

qreal QVHistoryViewController::itemHeight()
{
    // The name, the date and the status stacked: 70 points of the 130; the amount's own
    // row under them when it moves there.
    constexpr qreal kAmountRow = 48;
    return quorva::detail::grownWithText(130, 70) + (payoutBelowText() ? kAmountRow : 0);
}

bool QVHistoryViewController::payoutBelowText()
{
    return QVDevice::textScale() >= QVOfferUICollectionViewCell::kPayoutBelowTextScale;
}

QVHistoryViewController::~QVHistoryViewController() = default;

QAbstractItemModel *QVHistoryViewController::model() const
{
    return d_func()->m_transactions;
}

void QVHistoryViewController::setLoading(bool loading)
{
    if (d_func()->m_isLoading == loading)
        return;
    d_func()->m_isLoading = loading;
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
            self->d_func()->m_transactions->setTransactions(transactions);
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
    const int count = d_func()->m_transactions->rowCount();
    if (d_func()->m_noOffersCompleted && !d_func()->m_isLoading)
        d_func()->m_noOffersCompleted->setVisible(count == 0);
    return count;
}

bool QVHistoryViewController::isLoading() const
{
    return d_func()->m_isLoading;
}

QQuickItem *QVHistoryViewController::collectionView() const
{
    return d_func()->m_collectionView;
}

void QVHistoryViewController::setCollectionView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_collectionView, value))
        emit outletsChanged();
}

QQuickItem *QVHistoryViewController::noOffersCompleted() const
{
    return d_func()->m_noOffersCompleted;
}

void QVHistoryViewController::setNoOffersCompleted(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_noOffersCompleted, value))
        emit outletsChanged();
}
