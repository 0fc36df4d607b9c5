// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOfferUICollectionViewCell.h"
#include "QVDevice.h"
#include "QVImageView.h"


QVOfferUICollectionViewCell::QVOfferUICollectionViewCell(QQuickItem *parent) : QQuickItem(parent)
{
    connect(QVDevice::instance(), &QVDevice::textScaleChanged, this, &QVOfferUICollectionViewCell::payoutBelowTextChanged);
}

bool QVOfferUICollectionViewCell::payoutBelowText()
{
    return QVDevice::textScale() >= kPayoutBelowTextScale;
}

void QVOfferUICollectionViewCell::setRow(int row)
{
    if (m_row == row)
        return;
    m_row = row;
    emit rowChanged();
    if (isComponentComplete())
        configure();
}

void QVOfferUICollectionViewCell::setGeneration(int generation)
{
    if (m_generation == generation)
        return;
    m_generation = generation;
    emit generationChanged();
    if (isComponentComplete())
        configure();
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

void QVOfferUICollectionViewCell::configure()
{
    // Reused at another place, or at the same place of a list that changed: fill again.
    // Otherwise the cell already shows its offer, and a second fill would only restart
    // its picture.
    if (m_row == m_filledRow && m_generation == m_filledGeneration)
        return;
    auto *source = dynamic_cast<QVOfferUICollectionViewCellDelegate *>(m_dataSource.data());
    if (!source || m_row < 0)
        return;
    const bool filled = source->configureCell(this, m_row);
    m_filledRow = filled ? m_row : -1;
    m_filledGeneration = m_generation;
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
