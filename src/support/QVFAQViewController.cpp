// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFAQViewController.h"
#include "QVFAQViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "QVDevice.h"
#include "QVQACollectionViewCell.h"
#include "QVFaqListModel.h"
#include "QVLanguage.h"

#include <QtQuick/QQuickWindow>

namespace {
constexpr QLatin1StringView kFaqsResource("faqs.plist");
} // namespace

QVFAQViewController::QVFAQViewController(QQuickItem *parent)
    : QQuickItem(parent), m_d(std::make_unique<QVFAQViewControllerPrivate>())
{
    d_func()->m_model = new QVFaqListModel(this);
    // Rows are measured when they are built: a new text size builds them again.
    connect(QVDevice::instance(), &QVDevice::textScaleChanged, d_func()->m_model, &QVFaqListModel::reload,
            Qt::QueuedConnection);
}

QVFAQViewController::~QVFAQViewController() = default;

QString QVFAQViewController::faqsResourcePath()
{
    return quorva::detail::localizedResource(kFaqsResource);
}

QAbstractItemModel *QVFAQViewController::model() const
{
    return d_func()->m_model;
}

void QVFAQViewController::viewDidLoad()
{
    viewDidLoad(faqsResourcePath());
}

void QVFAQViewController::viewDidLoad(const QString &faqsPath)
{
    d_func()->m_model->setEntries(quorva::detail::readFaqPropertyList(faqsPath));
}

int QVFAQViewController::numberOfItems() const
{
    return d_func()->m_model->rowCount();
}

void QVFAQViewController::didSelectItem(int row)
{
    if (row < 0 || row >= numberOfItems())
        return;
    // Selecting the open row again keeps it open; the list is rebuilt either way. The
    // rebuild waits for the tap that asked for it to finish, as it replaces that cell.
    // The rebuild replaces the cell the keyboard is on: the new one takes it back.
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    const bool fromKeyboard = focused && isAncestorOf(focused);
    if (d_func()->m_selectedIndexPath != row || d_func()->m_keyboardRow != (fromKeyboard ? row : -1)) {
        d_func()->m_selectedIndexPath = row;
        d_func()->m_keyboardRow = fromKeyboard ? row : -1;
        emit selectedIndexPathChanged();
    }
    QMetaObject::invokeMethod(d_func()->m_model, &QVFaqListModel::reload, Qt::QueuedConnection);
}

int QVFAQViewController::keyboardRow() const
{
    return d_func()->m_keyboardRow;
}

qreal QVFAQViewController::heightForRow(int row, qreal width) const
{
    if (row < 0 || row >= numberOfItems())
        return kCollapsedHeight;
    const quorva::detail::FaqEntry &entry = d_func()->m_model->entries().at(row);
    if (!isExpanded(row))
        return qMax(kCollapsedHeight, QVQACollectionViewCell::fittingQuestionHeight(entry.question, width));
    return QVQACollectionViewCell::fittingHeight(entry.question, entry.answer, width);
}

int QVFAQViewController::selectedIndexPath() const
{
    return d_func()->m_selectedIndexPath;
}

bool QVFAQViewController::isExpanded(int row) const
{
    return d_func()->m_selectedIndexPath >= 0 && row == d_func()->m_selectedIndexPath;
}

QQuickItem *QVFAQViewController::collectionView() const
{
    return d_func()->m_collectionView;
}

void QVFAQViewController::setCollectionView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_collectionView, value))
        emit outletsChanged();
}
