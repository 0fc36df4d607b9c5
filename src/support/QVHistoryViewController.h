// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

#include <memory>

class QVPayoutFormatter;
class QVTransactionsListModel;

class QVHistoryViewControllerPrivate;

/// The history tab: the user's credited offers, asked for once when the tab is built and
/// never refreshed. An answer without transactions shows the empty label instead; a
/// failed request shows nothing at all.
class QUORVAMEDIA_EXPORT QVHistoryViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVHistoryViewControllerBase)
    /// Outlet: the collection view, set by the interface file.
    Q_PROPERTY(QQuickItem *collectionView READ collectionView WRITE setCollectionView NOTIFY outletsChanged FINAL)
    /// Outlet: the no offers completed, set by the interface file.
    Q_PROPERTY(QQuickItem *noOffersCompleted READ noOffersCompleted WRITE setNoOffersCompleted NOTIFY outletsChanged FINAL)
    /// The credited offers, as the list shows them. Owned by the tab.
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    /// True while the history request is under way.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged FINAL)
    /// A row's height, in points.
    Q_PROPERTY(qreal itemHeight READ itemHeight NOTIFY itemHeightChanged FINAL)
    /// True when the text is large enough that a row's amount goes under its texts, as
    /// an offer's payout button does (QVOfferUICollectionViewCell::payoutBelowText).
    Q_PROPERTY(bool payoutBelowText READ payoutBelowText NOTIFY itemHeightChanged FINAL)
    /// The space above the first row, in points.
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)

public:
    /// An empty tab; the support centre builds it.
    explicit QVHistoryViewController(QQuickItem *parent = nullptr);
    /// A request under way ends without calling back into the tab.
    ~QVHistoryViewController() override;
    /// The type name, "QVHistoryViewController".
    static QString identifier() { return QStringLiteral("QVHistoryViewController"); }
    ///@{
    /// See the properties of the same names.
    static qreal itemHeight();
    static bool payoutBelowText();
    static qreal sectionInsetTop() { return 5; }
    ///@}

    /// Sends the history request.
    void viewDidLoad();

    /// See #model.
    QAbstractItemModel *model() const;
    /// See #isLoading.
    bool isLoading() const;
    /// The row count; also decides the empty label, which only this changes.
    int numberOfItems();

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void isLoadingChanged();
    void itemHeightChanged();
    ///@}

private:
    Q_DECL_HIDDEN void setLoading(bool loading);
    Q_DECL_HIDDEN void reloadData();

    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN QQuickItem *collectionView() const;
    Q_DECL_HIDDEN void setCollectionView(QQuickItem *value);
    Q_DECL_HIDDEN QQuickItem *noOffersCompleted() const;
    Q_DECL_HIDDEN void setNoOffersCompleted(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVHistoryViewController)
    std::unique_ptr<QVHistoryViewControllerPrivate> m_d;
};
