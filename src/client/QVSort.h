// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QMetaType>
#include <QtCore/QString>

/// A sort choice: key is the label shown, value is what the service receives.
/// A plain value type: copies are independent and cheap (implicitly shared strings). Its
/// fields are fixed for all of 2.x; what a later release adds comes as a new type.
class QUORVAMEDIA_EXPORT QVSort
{
    Q_GADGET
    /// The label shown in the filter panel.
    Q_PROPERTY(QString key READ key WRITE setKey FINAL)
    /// What the service receives as the sort order.
    Q_PROPERTY(QString value READ value WRITE setValue FINAL)

public:
    /// An empty choice.
    QVSort() = default;
    /// A choice with its label and the value sent.
    QVSort(const QString &key, const QString &value) : m_key(key), m_value(value) {}

    ///@{
    /// The fields, as the properties of the same names describe them.
    QString key() const { return m_key; }
    void setKey(const QString &value) { m_key = value; }
    QString value() const { return m_value; }
    void setValue(const QString &value) { m_value = value; }
    ///@}

    /// True when every field is equal.
    friend bool operator==(const QVSort &, const QVSort &) = default;

private:
    QString m_key;
    QString m_value;
};
