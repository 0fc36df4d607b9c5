// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractListModel>

class QVFiltersViewController;

// The filter panel's two sections flattened into one list, each behind a header row of
// its own, so a section without rows still shows its header. A cell row knows its
// section, its row within it, its text and whether it bears the section's checkmark.
class QVFilterListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { KindRole = Qt::UserRole + 1, SectionRole, RowRole, TitleRole, SelectedRole };

    explicit QVFilterListModel(QVFiltersViewController *panel);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void reload();
    void refreshSelection(int section, int row);
    // The list row of a section's row; row -1 is the section's header.
    int flatRow(int section, int row) const;

private:
    QVFiltersViewController *m_panel;
};
