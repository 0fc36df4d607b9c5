#pragma once

#include "quorvamedia_global.h"
#include "QVCategory.h"
#include "QVSort.h"

#include <QtCore/QList>
#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

#include <optional>

class QVFilterListModel;

// Told which sort and category the user saved. The category is absent when the
// categories could not be loaded.
class QUORVAMEDIA_EXPORT QVFiltersViewControllerDelegate
{
public:
    virtual ~QVFiltersViewControllerDelegate() = default;
    virtual void onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort) = 0;
};

// The sort/filter panel: four sort choices and the service's categories behind
// "All Categories" and "Featured", one checkmark per section, and a save button that
// appears with the first real change.
class QUORVAMEDIA_EXPORT QVFiltersViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFiltersViewControllerBase)
    Q_PROPERTY(QQuickItem *collectionView MEMBER m_collectionView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *saveButton MEMBER m_saveButton NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    Q_PROPERTY(qreal topMargin READ topMargin WRITE setTopMargin NOTIFY topMarginChanged FINAL)
    Q_PROPERTY(qreal itemHeight READ itemHeight CONSTANT FINAL)
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)

public:
    static constexpr int kTypeSection = 0;
    static constexpr int kCategorySection = 1;
    static constexpr qreal kTabletTopMargin = 10;

    explicit QVFiltersViewController(QQuickItem *parent = nullptr);
    ~QVFiltersViewController() override;

    static QString allCategoriesName();
    static QString featuredName();
    static QList<QVSort> defaultSortOptions();
    // The process-wide category list; absent until the first successful load.
    static const std::optional<QList<QVCategory>> &allCategories();
    static void resetAllCategories(); // for tests: as if no panel had loaded yet

    QVFiltersViewControllerDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVFiltersViewControllerDelegate *delegate) { m_delegate = delegate; }
    std::optional<QVCategory> categoryParam() const { return m_categoryParam; }
    void setCategoryParam(const std::optional<QVCategory> &category) { m_categoryParam = category; }
    std::optional<QVSort> sortParam() const { return m_sortParam; }
    void setSortParam(const std::optional<QVSort> &sort) { m_sortParam = sort; }
    QList<QVSort> sortOptions() const { return m_sortOptions; }

    QAbstractItemModel *model() const;
    qreal topMargin() const { return m_topMargin; }
    void setTopMargin(qreal margin);
    static qreal itemHeight() { return 60; }
    static qreal sectionInsetTop() { return 5; }
    static qreal cornerRadius() { return 6; }

    int sortKeyIndex() const { return m_sortKeyIndex; }
    int categoryKeyIndex() const { return m_categoryKeyIndex; }
    int numberOfItems(int section) const;
    QString titleForRow(int section, int row) const;
    static QString titleForSection(int section);

    // Call once the delegate and the current choice are set.
    void viewDidLoad();
    void loadCategories();
    Q_INVOKABLE void didSelectItem(int section, int row);
    Q_INVOKABLE void onSavedPressed();

signals:
    void outletsChanged();
    void topMarginChanged();

protected:
    // The panel takes every press inside its area, so nothing beneath it is touched.
    void mousePressEvent(QMouseEvent *event) override;
    void touchEvent(QTouchEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    Q_DECL_HIDDEN void refresh();
    Q_DECL_HIDDEN void showFailureAlert();

    QVFiltersViewControllerDelegate *m_delegate = nullptr;
    std::optional<QVCategory> m_categoryParam;
    std::optional<QVSort> m_sortParam;
    QList<QVSort> m_sortOptions;
    int m_sortKeyIndex = 0;
    int m_categoryKeyIndex = 0;
    qreal m_topMargin = 0;
    QQuickItem *m_collectionView = nullptr;
    QQuickItem *m_saveButton = nullptr;
    QVFilterListModel *m_model = nullptr;
};
