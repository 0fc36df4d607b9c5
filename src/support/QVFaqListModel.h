// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "FaqPropertyList.h"

#include <QtCore/QAbstractListModel>

class QVFAQViewController;

// The FAQ's rows: question, answer and whether the row is the open one.
class QVFaqListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { QuestionRole = Qt::UserRole + 1, AnswerRole, ExpandedRole, RowRole };

    explicit QVFaqListModel(QVFAQViewController *faq);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QList<quorva::detail::FaqEntry> &entries() const { return m_entries; }
    void setEntries(const QList<quorva::detail::FaqEntry> &entries);
    // Rebuilds every row, as a row's kind (open or closed) may have changed.
    void reload();

private:
    QVFAQViewController *m_faq;
    QList<quorva::detail::FaqEntry> m_entries;
};
