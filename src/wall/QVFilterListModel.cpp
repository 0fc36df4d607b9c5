// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFilterListModel.h"
#include "QVFiltersViewController.h"

namespace {
constexpr QLatin1StringView kHeaderKind("header");
constexpr QLatin1StringView kCellKind("cell");
} // namespace

QVFilterListModel::QVFilterListModel(QVFiltersViewController *panel) : QAbstractListModel(panel), m_panel(panel) {}

int QVFilterListModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return 2 + m_panel->numberOfItems(QVFiltersViewController::kTypeSection)
        + m_panel->numberOfItems(QVFiltersViewController::kCategorySection);
}

int QVFilterListModel::flatRow(int section, int row) const
{
    const int headerRow = section == QVFiltersViewController::kTypeSection
        ? 0
        : 1 + m_panel->numberOfItems(QVFiltersViewController::kTypeSection);
    return headerRow + 1 + row;
}

QVariant QVFilterListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const int categoryHeader = flatRow(QVFiltersViewController::kCategorySection, -1);
    const int section = index.row() < categoryHeader ? QVFiltersViewController::kTypeSection
                                                     : QVFiltersViewController::kCategorySection;
    const int row = index.row() - flatRow(section, 0);
    const bool header = row < 0;
    switch (role) {
    case KindRole:
        return header ? QString(kHeaderKind) : QString(kCellKind);
    case SectionRole:
        return section;
    case RowRole:
        return row;
    case Qt::DisplayRole:
    case TitleRole:
        return header ? QVFiltersViewController::titleForSection(section) : m_panel->titleForRow(section, row);
    case SelectedRole:
        return !header
            && row == (section == QVFiltersViewController::kTypeSection ? m_panel->sortKeyIndex()
                                                                         : m_panel->categoryKeyIndex());
    default:
        return {};
    }
}

QHash<int, QByteArray> QVFilterListModel::roleNames() const
{
    return {{KindRole, "kind"}, {SectionRole, "sectionIndex"}, {RowRole, "row"}, {TitleRole, "title"},
            {SelectedRole, "selected"}};
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
