// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVFormFieldView.h"

/// The name of the offer the ticket is about.
class QUORVAMEDIA_EXPORT QVEnterOfferTitleView : public QVFormFieldView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEnterOfferTitleViewBase)
    /// Outlet: the offer name field, set by the interface file.
    Q_PROPERTY(QQuickItem *offerNameField MEMBER m_offerNameField NOTIFY outletsChanged FINAL)
    /// Outlet: the name icon, set by the interface file.
    Q_PROPERTY(QQuickItem *nameIcon MEMBER m_nameIcon NOTIFY outletsChanged FINAL)
    /// The field icon's name: "title_field_icon", or "title_field_error".
    Q_PROPERTY(QString nameIconName READ nameIconName NOTIFY nameIconNameChanged FINAL)

public:
    using QVFormFieldView::QVFormFieldView;
    /// The type name, "QVEnterOfferTitleView".
    static QString identifier() { return QStringLiteral("QVEnterOfferTitleView"); }

    /// See #offerNameField.
    QQuickItem *offerNameField() const { return m_offerNameField; }
    /// See #nameIconName.
    QString nameIconName() const { return m_nameIconName; }

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void nameIconNameChanged();
    ///@}

protected:
    bool applyLook(QQuickItem *field, bool error) override;

private:
    QQuickItem *m_offerNameField = nullptr;
    QQuickItem *m_nameIcon = nullptr;
    QString m_nameIconName = QStringLiteral("title_field_icon");
};
