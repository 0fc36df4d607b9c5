#include "QVOfferUICollectionViewCell.h"
#include "QVImageView.h"

QVOfferUICollectionViewCell::QVOfferUICollectionViewCell(QQuickItem *parent) : QQuickItem(parent) {}

void QVOfferUICollectionViewCell::setRow(int row)
{
    if (m_row == row)
        return;
    m_row = row;
    emit rowChanged();
    reload();
}

void QVOfferUICollectionViewCell::setDataSource(QObject *source)
{
    if (m_dataSource == source)
        return;
    m_dataSource = source;
    emit dataSourceChanged();
    reload();
}

void QVOfferUICollectionViewCell::componentComplete()
{
    QQuickItem::componentComplete();
    reload();
}

void QVOfferUICollectionViewCell::reload()
{
    // Outlets are assigned during creation; fill the cell only once they are all set.
    if (!isComponentComplete())
        return;
    if (auto *source = dynamic_cast<QVOfferUICollectionViewCellDelegate *>(m_dataSource.data()); source && m_row >= 0)
        source->configureCell(this, m_row);
}

void QVOfferUICollectionViewCell::onCreditsBtnPressed()
{
    if (m_delegate)
        m_delegate->onCreditsPressed(m_clickURL);
}

void QVOfferUICollectionViewCell::setClickURL(const QString &url)
{
    if (m_clickURL == url && m_clickURL.isNull() == url.isNull())
        return;
    m_clickURL = url;
    emit clickURLChanged();
}

void QVOfferUICollectionViewCell::setOfferName(const QString &name)
{
    if (m_offerName == name)
        return;
    m_offerName = name;
    emit offerNameChanged();
}

void QVOfferUICollectionViewCell::setOfferDescription(const QString &description)
{
    if (m_offerDescription == description)
        return;
    m_offerDescription = description;
    emit offerDescriptionChanged();
}

void QVOfferUICollectionViewCell::setPayoutTitle(const QString &title)
{
    if (m_payoutTitle == title)
        return;
    m_payoutTitle = title;
    emit payoutTitleChanged();
}
