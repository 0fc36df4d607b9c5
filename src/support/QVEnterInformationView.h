// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QVFormFieldView.h"

#include <QtGui/QColor>

/// The user's name and reply address. The e-mail field's error look also turns its text
/// red; the name field's text colour never changes.
class QUORVAMEDIA_EXPORT QVEnterInformationView : public QVFormFieldView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEnterInformationViewBase)
    /// Outlet: the name text field, set by the interface file.
    Q_PROPERTY(QQuickItem *nameTextField MEMBER m_nameTextField NOTIFY outletsChanged FINAL)
    /// Outlet: the email text field, set by the interface file.
    Q_PROPERTY(QQuickItem *emailTextField MEMBER m_emailTextField NOTIFY outletsChanged FINAL)
    /// Outlet: the content view, set by the interface file.
    Q_PROPERTY(QQuickItem *contentView MEMBER m_contentView NOTIFY outletsChanged FINAL)
    /// Outlet: the name icon, set by the interface file.
    Q_PROPERTY(QQuickItem *nameIcon MEMBER m_nameIcon NOTIFY outletsChanged FINAL)
    /// Outlet: the email icon, set by the interface file.
    Q_PROPERTY(QQuickItem *emailIcon MEMBER m_emailIcon NOTIFY outletsChanged FINAL)
    /// The name field icon's name: "name_field_icon", or "name_field_error".
    Q_PROPERTY(QString nameIconName READ nameIconName NOTIFY looksChanged FINAL)
    /// The e-mail field icon's name: "email_field_icon", or "email_field_error".
    Q_PROPERTY(QString emailIconName READ emailIconName NOTIFY looksChanged FINAL)
    /// The e-mail field's text colour: black, or A53838 red with the error look.
    Q_PROPERTY(QColor emailTextColor READ emailTextColor NOTIFY looksChanged FINAL)
    /// The address is shown in the theme's error colour.
    Q_PROPERTY(bool emailShowsError READ emailShowsError NOTIFY looksChanged FINAL)

public:
    using QVFormFieldView::QVFormFieldView;
    /// The type name, "QVEnterInformationView".
    static QString identifier() { return QStringLiteral("QVEnterInformationView"); }

    /// See #nameTextField.
    QQuickItem *nameTextField() const { return m_nameTextField; }
    /// See #emailTextField.
    QQuickItem *emailTextField() const { return m_emailTextField; }
    /// See #nameIconName.
    QString nameIconName() const { return m_nameIconName; }
    /// See #emailIconName.
    QString emailIconName() const { return m_emailIconName; }
    /// See #emailTextColor.
    QColor emailTextColor() const { return m_emailTextColor; }
    /// See #emailShowsError.
    bool emailShowsError() const { return m_emailTextColor != QColor(Qt::black); }

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void looksChanged();
    ///@}

protected:
    /// Gives the name or e-mail field its error or normal look.
    bool applyLook(QQuickItem *field, bool error) override;

private:
    QQuickItem *m_nameTextField = nullptr;
    QQuickItem *m_emailTextField = nullptr;
    QQuickItem *m_contentView = nullptr;
    QQuickItem *m_nameIcon = nullptr;
    QQuickItem *m_emailIcon = nullptr;
    QString m_nameIconName = QStringLiteral("name_field_icon");
    QString m_emailIconName = QStringLiteral("email_field_icon");
    QColor m_emailTextColor = Qt::black;
};
