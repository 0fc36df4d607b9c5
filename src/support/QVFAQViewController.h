// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>
#include <memory>

class QVFaqListModel;

class QVFAQViewControllerPrivate;

/// The FAQ tab: the questions of the library's "faqs" property list, one per row. Tapping
/// a question opens it in place; at most one is open, and only tapping another closes it.
class QUORVAMEDIA_EXPORT QVFAQViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVFAQViewControllerBase)
    /// Outlet: the collection view, set by the interface file.
    Q_PROPERTY(QQuickItem *collectionView READ collectionView WRITE setCollectionView NOTIFY outletsChanged FINAL)
    /// The questions and answers, as the list shows them. Owned by the tab.
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    /// The open row, -1 while none is.
    Q_PROPERTY(int selectedIndexPath READ selectedIndexPath NOTIFY selectedIndexPathChanged FINAL)
    /// The row opened from the keyboard, whose rebuilt cell takes the keyboard back; -1
    /// when the last row opened by a tap.
    Q_PROPERTY(int keyboardRow READ keyboardRow NOTIFY selectedIndexPathChanged FINAL)

public:
    /// A closed row's height, in points.
    static constexpr qreal kCollapsedHeight = 100;

    /// An empty tab; the support centre builds it.
    explicit QVFAQViewController(QQuickItem *parent = nullptr);
    /// Destroys the tab.
    ~QVFAQViewController() override;
    /// The type name, "QVFAQViewController".
    static QString identifier() { return QStringLiteral("QVFAQViewController"); }
    /// Where the library keeps its property list of questions and answers.
    static QString faqsResourcePath();

    /// Reads the questions; a missing or unreadable list leaves the FAQ empty.
    void viewDidLoad();
    /// Reads the questions from another property list.
    void viewDidLoad(const QString &faqsPath);

    /// See #model.
    QAbstractItemModel *model() const;
    /// The number of questions.
    int numberOfItems() const;
    /// The open row, -1 while none is.
    int selectedIndexPath() const;
    /// True when the row is the open one.
    bool isExpanded(int row) const;

    /// A tap on a question: opens it, closing the open one.
    Q_INVOKABLE void didSelectItem(int row);
    /// See #keyboardRow.
    int keyboardRow() const;
    /// A row's height in a list of that width: fixed when closed, the answer's when open.
    Q_INVOKABLE qreal heightForRow(int row, qreal width) const;

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void selectedIndexPathChanged();
    ///@}

private:
    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN QQuickItem *collectionView() const;
    Q_DECL_HIDDEN void setCollectionView(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVFAQViewController)
    std::unique_ptr<QVFAQViewControllerPrivate> m_d;
};
