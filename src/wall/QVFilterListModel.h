#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractListModel>

class QVFiltersViewController;

// The filter panel's two sections flattened into one list: the sort options, then the
// categories. Each row knows its section, its row within it, its text and whether it
// bears the section's checkmark.
class QUORVAMEDIA_EXPORT QVFilterListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { SectionRole = Qt::UserRole + 1, RowRole, TitleRole, SelectedRole, SectionTitleRole };

    explicit QVFilterListModel(QVFiltersViewController *panel);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void reload();
    void refreshSelection(int section, int row);
    int flatRow(int section, int row) const;

private:
    QVFiltersViewController *m_panel;
};
