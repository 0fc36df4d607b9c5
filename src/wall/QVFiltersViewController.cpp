#include "QVFiltersViewController.h"
#include "QVAlertPresenter.h"
#include "QVDevice.h"
#include "QVFilterListModel.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>

namespace {
constexpr QLatin1StringView kAllCategories("All Categories");
constexpr QLatin1StringView kFeatured("Featured");
constexpr const char *kSortSectionTitle = QT_TRANSLATE_NOOP("QVFiltersViewController", "Sort by Type");
constexpr const char *kCategorySectionTitle = QT_TRANSLATE_NOOP("QVFiltersViewController", "Sort by Category");
// Shown translated; kept in English in the records, where they are matched by name.
constexpr const char *kShownNames[] = {
    QT_TRANSLATE_NOOP("QVFiltersViewController", "All Categories"),
    QT_TRANSLATE_NOOP("QVFiltersViewController", "Featured"),
    QT_TRANSLATE_NOOP("QVFiltersViewController", "Popularity"),
    QT_TRANSLATE_NOOP("QVFiltersViewController", "Trending"),
    QT_TRANSLATE_NOOP("QVFiltersViewController", "Payout: High to Low"),
    QT_TRANSLATE_NOOP("QVFiltersViewController", "Credit Delay"),
};
constexpr QLatin1StringView kCategoriesFailedLog("Categories request failed");
constexpr const char *kAlertTitle = QT_TRANSLATE_NOOP("QVFiltersViewController", "No Connection");
constexpr const char *kAlertMessage = QT_TRANSLATE_NOOP("QVFiltersViewController", "Please check your internet and try again.");
constexpr const char *kAlertAction = QT_TRANSLATE_NOOP("QVFiltersViewController", "Ok");

std::optional<QList<QVCategory>> &sharedCategories()
{
    static std::optional<QList<QVCategory>> categories;
    return categories;
}

QVCategory namedCategory(QLatin1StringView name)
{
    QVCategory category;
    category.setCategoryName(name);
    return category;
}
} // namespace

QVFiltersViewController::QVFiltersViewController(QQuickItem *parent)
    : QQuickItem(parent), m_sortOptions(defaultSortOptions()), m_model(new QVFilterListModel(this))
{
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
}

void QVFiltersViewController::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void QVFiltersViewController::touchEvent(QTouchEvent *event)
{
    event->accept();
}

void QVFiltersViewController::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

QVFiltersViewController::~QVFiltersViewController() = default;

QString QVFiltersViewController::allCategoriesName() { return kAllCategories; }
QString QVFiltersViewController::featuredName() { return kFeatured; }

QList<QVSort> QVFiltersViewController::defaultSortOptions()
{
    return {QVSort(QStringLiteral("Popularity"), QStringLiteral("popularity")),
            QVSort(QStringLiteral("Trending"), QStringLiteral("trending")),
            QVSort(QStringLiteral("Payout: High to Low"), QStringLiteral("payout")),
            QVSort(QStringLiteral("Credit Delay"), QStringLiteral("credit_delay"))};
}

const std::optional<QList<QVCategory>> &QVFiltersViewController::allCategories()
{
    return sharedCategories();
}

void QVFiltersViewController::resetAllCategories()
{
    sharedCategories().reset();
}

QAbstractItemModel *QVFiltersViewController::model() const
{
    return m_model;
}

void QVFiltersViewController::setTopMargin(qreal margin)
{
    if (qFuzzyCompare(m_topMargin, margin))
        return;
    m_topMargin = margin;
    emit topMarginChanged();
}

void QVFiltersViewController::viewDidLoad()
{
    loadCategories();
    if (QVDevice::isTablet())
        setTopMargin(kTabletTopMargin);
}

int QVFiltersViewController::numberOfItems(int section) const
{
    if (section == kTypeSection)
        return int(m_sortOptions.size());
    return allCategories() ? int(allCategories()->size()) : 0;
}

QString QVFiltersViewController::titleForSection(int section)
{
    return tr(section == kTypeSection ? kSortSectionTitle : kCategorySectionTitle);
}

QString QVFiltersViewController::titleForRow(int section, int row) const
{
    const QString name = section == kTypeSection
        ? m_sortOptions.value(row).key()
        : (allCategories() ? allCategories()->value(row).categoryName() : QString());
    // The service's own category names are shown as it sends them.
    for (const char *shown : kShownNames) {
        if (name == QLatin1StringView(shown))
            return tr(shown);
    }
    return name;
}

void QVFiltersViewController::loadCategories()
{
    if (!m_sortParam)
        m_sortKeyIndex = 0;
    for (int row = 0; m_sortParam && row < m_sortOptions.size(); ++row) {
        if (m_sortOptions[row].value() == m_sortParam->value()) {
            m_sortKeyIndex = row;
            break;
        }
    }
    if (allCategories()) {
        refresh();
        return;
    }
    m_model->reload();
    // The request keeps the panel's pointer weak: a panel closed before the answer
    // still fills the shared list for the next one.
    QPointer<QVFiltersViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchCategories(
        [self](const QList<QVCategory> &categories) {
            QList<QVCategory> all{namedCategory(kAllCategories), namedCategory(kFeatured)};
            all += categories;
            sharedCategories() = all;
            if (self)
                self->refresh();
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kCategoriesFailedLog;
            if (self)
                self->showFailureAlert();
        });
}

void QVFiltersViewController::refresh()
{
    // Categories are matched by name, so the two fixed entries match too.
    if (!m_categoryParam)
        m_categoryKeyIndex = 0;
    const QList<QVCategory> categories = allCategories().value_or(QList<QVCategory>());
    for (int row = 0; m_categoryParam && row < categories.size(); ++row) {
        if (categories[row].categoryName() == m_categoryParam->categoryName()) {
            m_categoryKeyIndex = row;
            break;
        }
    }
    m_model->reload();
}

void QVFiltersViewController::didSelectItem(int section, int row)
{
    int &keyIndex = section == kTypeSection ? m_sortKeyIndex : m_categoryKeyIndex;
    if (row == keyIndex || row < 0 || row >= numberOfItems(section))
        return;
    const int previous = keyIndex;
    keyIndex = row;
    m_model->refreshSelection(section, previous);
    m_model->refreshSelection(section, row);
    if (m_saveButton)
        m_saveButton->setVisible(true);
}

void QVFiltersViewController::onSavedPressed()
{
    if (!m_delegate)
        return;
    std::optional<QVCategory> category;
    if (allCategories() && m_categoryKeyIndex < allCategories()->size())
        category = allCategories()->at(m_categoryKeyIndex);
    m_delegate->onSaveFiltersPressed(category, m_sortOptions.value(m_sortKeyIndex));
}

void QVFiltersViewController::showFailureAlert()
{
    QVAlertPresenter::present(this, tr(kAlertTitle), tr(kAlertMessage), tr(kAlertAction));
}
