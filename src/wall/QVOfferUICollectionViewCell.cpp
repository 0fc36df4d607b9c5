#include "QVOfferUICollectionViewCell.h"
#include "QVImageView.h"

#include <utility>

QVOfferUICollectionViewCell::QVOfferUICollectionViewCell(QQuickItem *parent) : QQuickItem(parent) {}

void QVOfferUICollectionViewCell::setRow(int row)
{
    if (m_row == row)
        return;
    m_row = row;
    emit rowChanged();
    // Once complete, a cell changes row only when the list reuses it, and the reuse
    // announcement that follows need not fill it a second time.
    if (isComponentComplete()) {
        configure();
        m_filledForReuse = true;
    }
}

void QVOfferUICollectionViewCell::setDataSource(QObject *source)
{
    if (m_dataSource == source)
        return;
    m_dataSource = source;
    emit dataSourceChanged();
    if (isComponentComplete())
        configure();
}

void QVOfferUICollectionViewCell::componentComplete()
{
    QQuickItem::componentComplete();
    // Outlets are assigned during creation; fill the cell once they are all set.
    configure();
}

void QVOfferUICollectionViewCell::reload()
{
    // Reused at the same row (after the list was emptied and refilled, say), the cell
    // still shows an earlier offer: fill it again.
    if (std::exchange(m_filledForReuse, false))
        return;
    configure();
}

void QVOfferUICollectionViewCell::configure()
{
    if (auto *source = dynamic_cast<QVOfferUICollectionViewCellDelegate *>(m_dataSource.data()); source && m_row >= 0)
        source->configureCell(this, m_row);
}

void QVOfferUICollectionViewCell::onCreditsBtnPressed()
{
    if (m_delegate)
        m_delegate->onCreditsPressed(m_clickURL);
}

template <typename Signal>
void QVOfferUICollectionViewCell::assign(QString &field, const QString &value, Signal changed)
{
    if (field == value && field.isNull() == value.isNull())
        return;
    field = value;
    emit (this->*changed)();
}

void QVOfferUICollectionViewCell::setClickURL(const QString &url)
{
    assign(m_clickURL, url, &QVOfferUICollectionViewCell::clickURLChanged);
}

void QVOfferUICollectionViewCell::setOfferName(const QString &name)
{
    assign(m_offerName, name, &QVOfferUICollectionViewCell::offerNameChanged);
}

void QVOfferUICollectionViewCell::setOfferDescription(const QString &description)
{
    assign(m_offerDescription, description, &QVOfferUICollectionViewCell::offerDescriptionChanged);
}

void QVOfferUICollectionViewCell::setPayoutTitle(const QString &title)
{
    assign(m_payoutTitle, title, &QVOfferUICollectionViewCell::payoutTitleChanged);
}
