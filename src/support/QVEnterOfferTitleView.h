#pragma once

#include "QVFormFieldView.h"

// The name of the offer the ticket is about.
class QUORVAMEDIA_EXPORT QVEnterOfferTitleView : public QVFormFieldView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVEnterOfferTitleViewBase)
    Q_PROPERTY(QQuickItem *offerNameField MEMBER m_offerNameField NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *nameIcon MEMBER m_nameIcon NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QString nameIconName READ nameIconName NOTIFY nameIconNameChanged FINAL)

public:
    using QVFormFieldView::QVFormFieldView;
    static QString identifier() { return QStringLiteral("QVEnterOfferTitleView"); }

    QQuickItem *offerNameField() const { return m_offerNameField; }
    QString nameIconName() const { return m_nameIconName; }

signals:
    void outletsChanged();
    void nameIconNameChanged();

protected:
    bool applyLook(QQuickItem *field, bool error) override;

private:
    QQuickItem *m_offerNameField = nullptr;
    QQuickItem *m_nameIcon = nullptr;
    QString m_nameIconName = QStringLiteral("title_field_icon");
};
