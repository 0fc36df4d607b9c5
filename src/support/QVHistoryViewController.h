#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QAbstractItemModel>
#include <QtQuick/QQuickItem>

#include <memory>

class QVPayoutFormatter;
class QVTransactionsListModel;

// The history tab: the user's credited offers, asked for once when the tab is built and
// never refreshed. An answer without transactions shows the empty label instead; a
// failed request shows nothing at all.
class QUORVAMEDIA_EXPORT QVHistoryViewController : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVHistoryViewControllerBase)
    Q_PROPERTY(QQuickItem *collectionView MEMBER m_collectionView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *noOffersCompleted MEMBER m_noOffersCompleted NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *model READ model CONSTANT FINAL)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged FINAL)
    Q_PROPERTY(qreal itemHeight READ itemHeight CONSTANT FINAL)
    Q_PROPERTY(qreal sectionInsetTop READ sectionInsetTop CONSTANT FINAL)

public:
    explicit QVHistoryViewController(QQuickItem *parent = nullptr);
    ~QVHistoryViewController() override;
    static QString identifier() { return QStringLiteral("QVHistoryViewController"); }
    static qreal itemHeight() { return 130; }
    static qreal sectionInsetTop() { return 5; }

    // Sends the history request.
    void viewDidLoad();

    QAbstractItemModel *model() const;
    bool isLoading() const { return m_isLoading; }
    // The row count; also decides the empty label, which only this changes.
    int numberOfItems();

signals:
    void outletsChanged();
    void isLoadingChanged();

private:
    Q_DECL_HIDDEN void setLoading(bool loading);
    Q_DECL_HIDDEN void reloadData();

    QQuickItem *m_collectionView = nullptr;
    QQuickItem *m_noOffersCompleted = nullptr;
    std::unique_ptr<QVPayoutFormatter> m_numberFormatter;
    QVTransactionsListModel *m_transactions = nullptr;
    bool m_isLoading = false;
};
