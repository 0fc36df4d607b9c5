// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVCategory.h"
#include "QVSort.h"

#include <QtCore/QList>
#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

#include <optional>
#include <memory>

class QVFilterListModel;

class QVFiltersViewControllerPrivate;

/// Told which sort and category the user saved. The category is absent when the
/// categories could not be loaded.
class QUORVAMEDIA_EXPORT QVFiltersViewControllerDelegate
{
public:
    /// The delegate is not owned by the panel.
    virtual ~QVFiltersViewControllerDelegate() = default;
    /// The user saved this choice.
    virtual void onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort) = 0;
};

/// The sort/filter panel: four sort choices and the service's categories behind
/// "All Categories" and "Featured", one checkmark per section, and a save button that
/// appears with the first real change.
class QUORVAMEDIA_EXPORT QVFiltersViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFiltersViewControllerBase)
    /// Outlet: the list of rows.
    Q_PROPERTY(QQuickItem *collectionView READ collectionView WRITE setCollectionView NOTIFY outletsChanged FINAL)
    /// Outlet: the save button.
    Q_PROPERTY(QQuickItem *saveButton READ saveButton WRITE setSaveButton NOTIFY outletsChanged FINAL)
    /// The panel's sections and rows, as the list shows them. Owned by the panel.
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    /// Space above the first section, in points.
    Q_PROPERTY(qreal topMargin READ topMargin WRITE setTopMargin NOTIFY topMarginChanged FINAL)
    /// A row's height, in points.
    Q_PROPERTY(qreal itemHeight READ itemHeight NOTIFY itemHeightChanged FINAL)
    /// Space above each section, in points.
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)
    /// The corner radius of a section's card, in points.
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)

public:
    /// The section of sort choices.
    static constexpr int kTypeSection = 0;
    /// The section of categories.
    static constexpr int kCategorySection = 1;
    /// #topMargin in the tablet popover, in points.
    static constexpr qreal kTabletTopMargin = 10;

    /// An empty panel; the wall builds it when the user opens it.
    explicit QVFiltersViewController(QQuickItem *parent = nullptr);
    /// A category request under way ends without calling back into the panel.
    ~QVFiltersViewController() override;

    /// The first category row, which filters nothing: "All Categories".
    static QString allCategoriesName();
    /// The second category row, featured offers only: "Featured".
    static QString featuredName();
    /// The four sort choices, in the panel's order.
    static QList<QVSort> defaultSortOptions();
    /// The process-wide category list; absent until the first successful load.
    static const std::optional<QList<QVCategory>> &allCategories();
    /// Forgets the loaded categories, as if no panel had loaded them yet.
    static void resetAllCategories();

    ///@{
    /// The listener told of the saved choice; not owned.
    QVFiltersViewControllerDelegate *delegate() const;
    void setDelegate(QVFiltersViewControllerDelegate *delegate);
    ///@}
    ///@{
    /// The choice the panel opens with, checked; set before viewDidLoad().
    std::optional<QVCategory> categoryParam() const;
    void setCategoryParam(const std::optional<QVCategory> &category);
    std::optional<QVSort> sortParam() const;
    void setSortParam(const std::optional<QVSort> &sort);
    ///@}
    /// The sort choices the panel shows.
    QList<QVSort> sortOptions() const;

    ///@{
    /// See the properties of the same names.
    QAbstractItemModel *model() const;
    qreal topMargin() const;
    void setTopMargin(qreal margin);
    static qreal itemHeight();
    static qreal sectionInsetTop() { return 5; }
    static qreal cornerRadius() { return 6; }
    ///@}

    ///@{
    /// The checked row of each section.
    int sortKeyIndex() const;
    int categoryKeyIndex() const;
    ///@}
    /// The number of rows in the section.
    int numberOfItems(int section) const;
    /// The text of a row.
    QString titleForRow(int section, int row) const;
    /// The title of a section.
    static QString titleForSection(int section);

    /// Call once the delegate and the current choice are set.
    void viewDidLoad();
    /// Requests the categories unless they were loaded before; a failure alerts.
    void loadCategories();
    /// A tap on a row: checks it, unchecking the section's other row.
    Q_INVOKABLE void didSelectItem(int section, int row);
    /// The save button: tells the delegate the checked choice.
    Q_INVOKABLE void onSavedPressed();

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void topMarginChanged();
    void itemHeightChanged();
    ///@}

protected:
    ///@{
    /// The panel takes every press inside its area, so nothing beneath it is touched.
    void mousePressEvent(QMouseEvent *event) override;
    void touchEvent(QTouchEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    ///@}

private:
    Q_DECL_HIDDEN void refresh();
    Q_DECL_HIDDEN void showFailureAlert();

    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN QQuickItem *collectionView() const;
    Q_DECL_HIDDEN void setCollectionView(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *saveButton() const;
    Q_DECL_HIDDEN void setSaveButton(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVFiltersViewController)
    std::unique_ptr<QVFiltersViewControllerPrivate> m_d;
};
