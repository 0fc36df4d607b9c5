#include "QVFAQViewController.h"
#include "QVQACollectionViewCell.h"
#include "QVFaqListModel.h"
#include "QVLanguage.h"

namespace {
constexpr QLatin1StringView kFaqsResource("faqs.plist");
} // namespace

QVFAQViewController::QVFAQViewController(QQuickItem *parent) : QQuickItem(parent), m_model(new QVFaqListModel(this)) {}

QString QVFAQViewController::faqsResourcePath()
{
    return quorva::detail::localizedResource(kFaqsResource);
}

QAbstractItemModel *QVFAQViewController::model() const
{
    return m_model;
}

void QVFAQViewController::viewDidLoad()
{
    viewDidLoad(faqsResourcePath());
}

void QVFAQViewController::viewDidLoad(const QString &faqsPath)
{
    m_model->setEntries(quorva::detail::readFaqPropertyList(faqsPath));
}

int QVFAQViewController::numberOfItems() const
{
    return m_model->rowCount();
}

void QVFAQViewController::didSelectItem(int row)
{
    if (row < 0 || row >= numberOfItems())
        return;
    // Selecting the open row again keeps it open; the list is rebuilt either way. The
    // rebuild waits for the tap that asked for it to finish, as it replaces that cell.
    if (m_selectedIndexPath != row) {
        m_selectedIndexPath = row;
        emit selectedIndexPathChanged();
    }
    QMetaObject::invokeMethod(m_model, &QVFaqListModel::reload, Qt::QueuedConnection);
}

qreal QVFAQViewController::heightForRow(int row, qreal width) const
{
    if (!isExpanded(row) || row >= numberOfItems())
        return kCollapsedHeight;
    const quorva::detail::FaqEntry &entry = m_model->entries().at(row);
    return QVQACollectionViewCell::fittingHeight(entry.question, entry.answer, width);
}
