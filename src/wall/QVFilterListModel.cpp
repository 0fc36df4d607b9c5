#include "QVFilterListModel.h"
#include "QVFiltersViewController.h"

QVFilterListModel::QVFilterListModel(QVFiltersViewController *panel) : QAbstractListModel(panel), m_panel(panel) {}

int QVFilterListModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_panel->numberOfItems(QVFiltersViewController::kTypeSection)
        + m_panel->numberOfItems(QVFiltersViewController::kCategorySection);
}

int QVFilterListModel::flatRow(int section, int row) const
{
    return section == QVFiltersViewController::kTypeSection
        ? row
        : m_panel->numberOfItems(QVFiltersViewController::kTypeSection) + row;
}

QVariant QVFilterListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const int sortCount = m_panel->numberOfItems(QVFiltersViewController::kTypeSection);
    const int section = index.row() < sortCount ? QVFiltersViewController::kTypeSection
                                                : QVFiltersViewController::kCategorySection;
    const int row = section == QVFiltersViewController::kTypeSection ? index.row() : index.row() - sortCount;
    switch (role) {
    case SectionRole:
        return section;
    case RowRole:
        return row;
    case Qt::DisplayRole:
    case TitleRole:
        return m_panel->titleForRow(section, row);
    case SelectedRole:
        return row == (section == QVFiltersViewController::kTypeSection ? m_panel->sortKeyIndex()
                                                                         : m_panel->categoryKeyIndex());
    case SectionTitleRole:
        return QVFiltersViewController::titleForSection(section);
    default:
        return {};
    }
}

QHash<int, QByteArray> QVFilterListModel::roleNames() const
{
    return {{SectionRole, "sectionIndex"}, {RowRole, "row"}, {TitleRole, "title"},
            {SelectedRole, "selected"}, {SectionTitleRole, "sectionTitle"}};
}

void QVFilterListModel::reload()
{
    beginResetModel();
    endResetModel();
}

void QVFilterListModel::refreshSelection(int section, int row)
{
    const QModelIndex changed = index(flatRow(section, row));
    emit dataChanged(changed, changed, {SelectedRole});
}
