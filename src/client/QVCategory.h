// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include <QtCore/QMetaType>
#include <QtCore/QString>

/// An offer category; categoryId is the text sent as category_id.
/// A plain value type: copies are independent and cheap (implicitly shared strings). Its
/// fields are fixed for all of 2.x; what a later release adds comes as a new type.
class QUORVAMEDIA_EXPORT QVCategory
{
    Q_GADGET
    /// The text sent as the category's identifier.
    Q_PROPERTY(QString categoryId READ categoryId WRITE setCategoryId FINAL)
    /// The name shown in the filter panel.
    Q_PROPERTY(QString categoryName READ categoryName WRITE setCategoryName FINAL)

public:
    ///@{
    /// The fields, as the properties of the same names describe them.
    QString categoryId() const { return m_categoryId; }
    void setCategoryId(const QString &value) { m_categoryId = value; }
    QString categoryName() const { return m_categoryName; }
    void setCategoryName(const QString &value) { m_categoryName = value; }
    ///@}

    /// True when every field is equal.
    friend bool operator==(const QVCategory &, const QVCategory &) = default;

private:
    QString m_categoryId;
    QString m_categoryName;
};
