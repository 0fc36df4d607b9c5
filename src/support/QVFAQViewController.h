#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

class QVFaqListModel;

// The FAQ tab: the questions of the library's "faqs" property list, one per row. Tapping
// a question opens it in place; at most one is open, and only tapping another closes it.
class QUORVAMEDIA_EXPORT QVFAQViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFAQViewControllerBase)
    Q_PROPERTY(QQuickItem *collectionView MEMBER m_collectionView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    Q_PROPERTY(int selectedIndexPath READ selectedIndexPath NOTIFY selectedIndexPathChanged FINAL)

public:
    static constexpr qreal kCollapsedHeight = 100;

    explicit QVFAQViewController(QQuickItem *parent = nullptr);
    static QString identifier() { return QStringLiteral("QVFAQViewController"); }
    // Where the library keeps its property list of questions and answers.
    static QString faqsResourcePath();

    // Reads the questions; a missing or unreadable list leaves the FAQ empty.
    void viewDidLoad();
    void viewDidLoad(const QString &faqsPath);

    QAbstractItemModel *model() const;
    int numberOfItems() const;
    // The open row, -1 while none is.
    int selectedIndexPath() const { return m_selectedIndexPath; }
    bool isExpanded(int row) const { return m_selectedIndexPath >= 0 && row == m_selectedIndexPath; }

    Q_INVOKABLE void didSelectItem(int row);
    // A row's height in a list of that width: fixed when closed, the answer's when open.
    Q_INVOKABLE qreal heightForRow(int row, qreal width) const;

signals:
    void outletsChanged();
    void selectedIndexPathChanged();

private:
    QQuickItem *m_collectionView = nullptr;
    QVFaqListModel *m_model = nullptr;
    int m_selectedIndexPath = -1;
};
