// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

/// A row of the filter panel: a label and a checkmark that is the only selection mark.
class QUORVAMEDIA_EXPORT QVFilterUICollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFilterUICollectionViewCellBase)
    /// True when the row is its section's choice: its checkmark shows.
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged FINAL)
    /// Outlet: the row's text.
    Q_PROPERTY(QQuickItem *name MEMBER m_name NOTIFY outletsChanged FINAL)
    /// Outlet: the checkmark.
    Q_PROPERTY(QQuickItem *checkmarkImage MEMBER m_checkmarkImage NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The row's type name, "QVFilterUICollectionViewCell".
    static QString identifier() { return QStringLiteral("QVFilterUICollectionViewCell"); }

    ///@{
    /// See #selected.
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    ///@}

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void selectedChanged();
    void outletsChanged();
    ///@}

protected:
    /// Reimplemented from QQuickItem.
    void componentComplete() override;

private:
    bool m_selected = false;
    QQuickItem *m_name = nullptr;
    QQuickItem *m_checkmarkImage = nullptr;
};

/// A section title of the filter panel.
class QUORVAMEDIA_EXPORT QVFilterUICollectionViewHeader : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFilterUICollectionViewHeaderBase)
    /// Outlet: the title text.
    Q_PROPERTY(QQuickItem *name MEMBER m_name NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    /// The header's type name, "QVFilterUICollectionViewHeader".
    static QString identifier() { return QStringLiteral("QVFilterUICollectionViewHeader"); }

signals:
    /// Emitted when the outlet is set.
    void outletsChanged();

private:
    QQuickItem *m_name = nullptr;
};
