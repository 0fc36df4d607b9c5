// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVFaqListModel.h"
#include "QVFAQViewController.h"

QVFaqListModel::QVFaqListModel(QVFAQViewController *faq) : QAbstractListModel(faq), m_faq(faq) {}

int QVFaqListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant QVFaqListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const quorva::detail::FaqEntry &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case QuestionRole:
        return entry.question;
    case AnswerRole:
        return entry.answer;
    case ExpandedRole:
        return m_faq->isExpanded(index.row());
    case RowRole:
        return index.row();
    default:
        return {};
    }
}

QHash<int, QByteArray> QVFaqListModel::roleNames() const
{
    return {{QuestionRole, "question"}, {AnswerRole, "answer"}, {ExpandedRole, "expanded"}, {RowRole, "row"}};
}

void QVFaqListModel::setEntries(const QList<quorva::detail::FaqEntry> &entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

void QVFaqListModel::reload()
{
    beginResetModel();
    endResetModel();
}
