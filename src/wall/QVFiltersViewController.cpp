// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFiltersViewController.h"
#include "QVFiltersViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "QVAlertPresenter.h"
#include "DeviceIdiom.h"
#include "QVDevice.h"
#include "FocusChain.h"
#include "QVFilterListModel.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QPointer>
#include <QtQuick/QQuickWindow>
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
// The delegate properties that place a choice row (the interface file names them).
constexpr const char *kSectionIndexProperty = "sectionIndex";
constexpr const char *kRowProperty = "row";
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
    : QQuickItem(parent), m_d(std::make_unique<QVFiltersViewControllerPrivate>())
{
    d_func()->m_sortOptions = defaultSortOptions();
    d_func()->m_model = new QVFilterListModel(this);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    connect(QVDevice::instance(), &QVDevice::textScaleChanged, this, &QVFiltersViewController::itemHeightChanged);
}

qreal QVFiltersViewController::itemHeight()
{
    // Room for a second line of a large text.
    return quorva::detail::grownWithText(60, 40);
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
    return d_func()->m_model;
}

void QVFiltersViewController::setTopMargin(qreal margin)
{
    if (qFuzzyCompare(d_func()->m_topMargin, margin))
        return;
    d_func()->m_topMargin = margin;
    emit topMarginChanged();
}

void QVFiltersViewController::viewDidLoad()
{
    loadCategories();
    if (quorva::detail::isTabletFor(this))
        setTopMargin(kTabletTopMargin);
}

int QVFiltersViewController::numberOfItems(int section) const
{
    if (section == kTypeSection)
        return int(d_func()->m_sortOptions.size());
    return allCategories() ? int(allCategories()->size()) : 0;
}

QString QVFiltersViewController::titleForSection(int section)
{
    return tr(section == kTypeSection ? kSortSectionTitle : kCategorySectionTitle);
}

QString QVFiltersViewController::titleForRow(int section, int row) const
{
    const QString name = section == kTypeSection
        ? d_func()->m_sortOptions.value(row).key()
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
    if (!d_func()->m_sortParam)
        d_func()->m_sortKeyIndex = 0;
    for (int row = 0; d_func()->m_sortParam && row < d_func()->m_sortOptions.size(); ++row) {
        if (d_func()->m_sortOptions[row].value() == d_func()->m_sortParam->value()) {
            d_func()->m_sortKeyIndex = row;
            break;
        }
    }
    if (allCategories()) {
        refresh();
        return;
    }
    d_func()->m_model->reload();
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
    if (!d_func()->m_categoryParam)
        d_func()->m_categoryKeyIndex = 0;
    const QList<QVCategory> categories = allCategories().value_or(QList<QVCategory>());
    for (int row = 0; d_func()->m_categoryParam && row < categories.size(); ++row) {
        if (categories[row].categoryName() == d_func()->m_categoryParam->categoryName()) {
            d_func()->m_categoryKeyIndex = row;
            break;
        }
    }
    // The reset builds every row anew: a keyboard on a choice stays on that choice.
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    const bool hadKeyboard = focused && isAncestorOf(focused);
    const QVariant section = hadKeyboard ? focused->property(kSectionIndexProperty) : QVariant();
    const QVariant row = hadKeyboard ? focused->property(kRowProperty) : QVariant();
    d_func()->m_model->reload();
    if (hadKeyboard) {
        quorva::detail::focusFirstWhenBuilt(d_func()->m_collectionView, quorva::detail::kFocusAttempts,
                                            [section, row](QQuickItem *choice) {
                                                return !section.isValid()
                                                    || (choice->property(kSectionIndexProperty) == section
                                                        && choice->property(kRowProperty) == row);
                                            });
    }
}

void QVFiltersViewController::didSelectItem(int section, int row)
{
    int &keyIndex = section == kTypeSection ? d_func()->m_sortKeyIndex : d_func()->m_categoryKeyIndex;
    if (row == keyIndex || row < 0 || row >= numberOfItems(section))
        return;
    const int previous = keyIndex;
    keyIndex = row;
    d_func()->m_model->refreshSelection(section, previous);
    d_func()->m_model->refreshSelection(section, row);
    if (d_func()->m_saveButton)
        d_func()->m_saveButton->setVisible(true);
}

void QVFiltersViewController::onSavedPressed()
{
    if (!d_func()->m_delegate)
        return;
    std::optional<QVCategory> category;
    if (allCategories() && d_func()->m_categoryKeyIndex < allCategories()->size())
        category = allCategories()->at(d_func()->m_categoryKeyIndex);
    d_func()->m_delegate->onSaveFiltersPressed(category, d_func()->m_sortOptions.value(d_func()->m_sortKeyIndex));
}

void QVFiltersViewController::showFailureAlert()
{
    QVAlertPresenter::present(this, tr(kAlertTitle), tr(kAlertMessage), tr(kAlertAction));
}

QVFiltersViewControllerDelegate *QVFiltersViewController::delegate() const
{
    return d_func()->m_delegate;
}

void QVFiltersViewController::setDelegate(QVFiltersViewControllerDelegate *delegate)
{
    d_func()->m_delegate = delegate;
}

std::optional<QVCategory> QVFiltersViewController::categoryParam() const
{
    return d_func()->m_categoryParam;
}

void QVFiltersViewController::setCategoryParam(const std::optional<QVCategory> &category)
{
    d_func()->m_categoryParam = category;
}

std::optional<QVSort> QVFiltersViewController::sortParam() const
{
    return d_func()->m_sortParam;
}

void QVFiltersViewController::setSortParam(const std::optional<QVSort> &sort)
{
    d_func()->m_sortParam = sort;
}

QList<QVSort> QVFiltersViewController::sortOptions() const
{
    return d_func()->m_sortOptions;
}

qreal QVFiltersViewController::topMargin() const
{
    return d_func()->m_topMargin;
}

int QVFiltersViewController::sortKeyIndex() const
{
    return d_func()->m_sortKeyIndex;
}

int QVFiltersViewController::categoryKeyIndex() const
{
    return d_func()->m_categoryKeyIndex;
}

QQuickItem *QVFiltersViewController::collectionView() const
{
    return d_func()->m_collectionView;
}

void QVFiltersViewController::setCollectionView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_collectionView, value))
        emit outletsChanged();
}

QQuickItem *QVFiltersViewController::saveButton() const
{
    return d_func()->m_saveButton;
}

void QVFiltersViewController::setSaveButton(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_saveButton, value))
        emit outletsChanged();
}
