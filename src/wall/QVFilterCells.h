#pragma once

#include "quorvamedia_global.h"

#include <QtQuick/QQuickItem>

// A row of the filter panel: a label and a checkmark that is the only selection mark.
class QUORVAMEDIA_EXPORT QVFilterUICollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFilterUICollectionViewCellBase)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged FINAL)
    Q_PROPERTY(QQuickItem *name MEMBER m_name NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *checkmarkImage MEMBER m_checkmarkImage NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVFilterUICollectionViewCell"); }

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

signals:
    void selectedChanged();
    void outletsChanged();

protected:
    void componentComplete() override;

private:
    bool m_selected = false;
    QQuickItem *m_name = nullptr;
    QQuickItem *m_checkmarkImage = nullptr;
};

// A section title of the filter panel.
class QUORVAMEDIA_EXPORT QVFilterUICollectionViewHeader : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFilterUICollectionViewHeaderBase)
    Q_PROPERTY(QQuickItem *name MEMBER m_name NOTIFY outletsChanged FINAL)

public:
    using QQuickItem::QQuickItem;
    static QString identifier() { return QStringLiteral("QVFilterUICollectionViewHeader"); }

signals:
    void outletsChanged();

private:
    QQuickItem *m_name = nullptr;
};
