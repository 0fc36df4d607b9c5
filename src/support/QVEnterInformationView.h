#pragma once

#include "QVFormFieldView.h"

#include <QtGui/QColor>

// The user's name and reply address. The e-mail field's error look also turns its text
// red; the name field's text colour never changes.
class QUORVAMEDIA_EXPORT QVEnterInformationView : public QVFormFieldView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEnterInformationViewBase)
    Q_PROPERTY(QQuickItem *nameTextField MEMBER m_nameTextField NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *emailTextField MEMBER m_emailTextField NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *contentView MEMBER m_contentView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *nameIcon MEMBER m_nameIcon NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *emailIcon MEMBER m_emailIcon NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QString nameIconName READ nameIconName NOTIFY looksChanged FINAL)
    Q_PROPERTY(QString emailIconName READ emailIconName NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor emailTextColor READ emailTextColor NOTIFY looksChanged FINAL)
    // The address is shown in the theme's error colour.
    Q_PROPERTY(bool emailShowsError READ emailShowsError NOTIFY looksChanged FINAL)

public:
    using QVFormFieldView::QVFormFieldView;
    static QString identifier() { return QStringLiteral("QVEnterInformationView"); }

    QQuickItem *nameTextField() const { return m_nameTextField; }
    QQuickItem *emailTextField() const { return m_emailTextField; }
    QString nameIconName() const { return m_nameIconName; }
    QString emailIconName() const { return m_emailIconName; }
    QColor emailTextColor() const { return m_emailTextColor; }
    bool emailShowsError() const { return m_emailTextColor != QColor(Qt::black); }

signals:
    void outletsChanged();
    void looksChanged();

protected:
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
