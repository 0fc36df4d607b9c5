// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

class QVImageView;
class QVOfferUICollectionViewCell;

/// Told when the payout button of a cell is pressed.
class QUORVAMEDIA_EXPORT QVOfferUICollectionViewCellDelegate
{
public:
    /// The delegate is not owned by the cell.
    virtual ~QVOfferUICollectionViewCellDelegate() = default;
    /// The payout button of a cell showing the offer with this click address was pressed.
    virtual void onCreditsPressed(const QString &clickURL) = 0;
    /// Fills a cell with the offer at that place of the list; cells ask when they are
    /// built or reused. False when there is no such offer (yet).
    virtual bool configureCell(QVOfferUICollectionViewCell *cell, int row) = 0;
};

/// One offer of the wall: picture, name, description and a payout button on a card.
class QUORVAMEDIA_EXPORT QVOfferUICollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferUICollectionViewCellBase)
    /// The offer's place in the wall's list; -1 before the list places the cell.
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY rowChanged FINAL)
    /// Changes when what the cell should show may have changed without its place.
    Q_PROPERTY(int generation READ generation WRITE setGeneration NOTIFY generationChanged FINAL)
    /// The cell's delegate as the list sets it from QML: the wall.
    Q_PROPERTY(QObject *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged FINAL)
    /// The shown offer's click address.
    Q_PROPERTY(QString clickURL READ clickURL WRITE setClickURL NOTIFY clickURLChanged FINAL)
    /// The shown offer's name.
    Q_PROPERTY(QString offerName READ offerName NOTIFY offerNameChanged FINAL)
    /// The shown offer's description.
    Q_PROPERTY(QString offerDescription READ offerDescription NOTIFY offerDescriptionChanged FINAL)
    /// The payout button's text, such as "+1,500".
    Q_PROPERTY(QString payoutTitle READ payoutTitle NOTIFY payoutTitleChanged FINAL)
    /// Outlet: the offer's picture.
    Q_PROPERTY(QVImageView *thumbImage MEMBER m_thumbImage NOTIFY outletsChanged FINAL)
    /// Outlet: the name text.
    Q_PROPERTY(QQuickItem *nameLabel MEMBER m_nameLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the description text.
    Q_PROPERTY(QQuickItem *descriptionLabel MEMBER m_descriptionLabel NOTIFY outletsChanged FINAL)
    /// Outlet: the payout button.
    Q_PROPERTY(QQuickItem *creditsBtn MEMBER m_creditsBtn NOTIFY outletsChanged FINAL)
    /// Outlet: the card.
    Q_PROPERTY(QQuickItem *containerView MEMBER m_containerView NOTIFY outletsChanged FINAL)
    /// The card's corner radius, in points.
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)
    /// The card's border width, in points.
    Q_PROPERTY(qreal borderWidth READ borderWidth CONSTANT FINAL)
    /// The card's border colour.
    Q_PROPERTY(QColor borderColor READ borderColor CONSTANT FINAL)
    /// The space around the card inside the cell, in points.
    Q_PROPERTY(qreal cardInset READ cardInset CONSTANT FINAL)
    /// True from a text scale of #kPayoutBelowTextScale: the payout button goes under the
    /// texts, which then take the card's whole width.
    Q_PROPERTY(bool payoutBelowText READ payoutBelowText NOTIFY payoutBelowTextChanged FINAL)

public:
    /// An empty cell; the wall's list builds and reuses them.
    explicit QVOfferUICollectionViewCell(QQuickItem *parent = nullptr);

    /// The cell's type name, "QVOfferUICollectionViewCell".
    static QString identifier() { return QStringLiteral("QVOfferUICollectionViewCell"); }
    /// The cell's height in one column, in points.
    static double cellHeight() { return 120.0; }
    /// The text scale from which the payout button goes under the texts.
    static constexpr qreal kPayoutBelowTextScale = 1.5;
    /// The height the payout button's own row adds then, in points.
    static constexpr qreal kPayoutRowHeight = 56;
    /// See #payoutBelowText.
    static bool payoutBelowText();
    ///@{
    /// See the properties of the same names.
    static qreal cornerRadius() { return 6.0; }
    static qreal borderWidth() { return 1.0; }
    static QColor borderColor() { return QColor(Qt::transparent); }
    static qreal cardInset() { return 6.0; }
    ///@}

    ///@{
    /// The listener told of the payout button and asked for the cell's offer; not owned.
    QVOfferUICollectionViewCellDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVOfferUICollectionViewCellDelegate *delegate) { m_delegate = delegate; }
    ///@}

    ///@{
    /// See the properties of the same names.
    int row() const { return m_row; }
    void setRow(int row);
    int generation() const { return m_generation; }
    void setGeneration(int generation);
    QObject *dataSource() const { return m_dataSource; }
    void setDataSource(QObject *source);

    QString clickURL() const { return m_clickURL; }
    void setClickURL(const QString &url);
    QString offerName() const { return m_offerName; }
    void setOfferName(const QString &name);
    QString offerDescription() const { return m_offerDescription; }
    void setOfferDescription(const QString &description);
    QString payoutTitle() const { return m_payoutTitle; }
    void setPayoutTitle(const QString &title);
    ///@}

    ///@{
    /// The outlets of the same names.
    QVImageView *thumbImage() const { return m_thumbImage; }
    QQuickItem *creditsBtn() const { return m_creditsBtn; }
    ///@}

    /// The payout button's action.
    Q_INVOKABLE void onCreditsBtnPressed();

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void rowChanged();
    void generationChanged();
    void dataSourceChanged();
    void clickURLChanged();
    void offerNameChanged();
    void offerDescriptionChanged();
    void payoutTitleChanged();
    void outletsChanged();
    void payoutBelowTextChanged();
    ///@}

protected:
    /// Reimplemented from QQuickItem.
    void componentComplete() override;

private:
    template <typename Signal>
    Q_DECL_HIDDEN void assign(QString &field, const QString &value, Signal changed);
    Q_DECL_HIDDEN void configure();

    QVOfferUICollectionViewCellDelegate *m_delegate = nullptr;
    QPointer<QObject> m_dataSource;
    int m_row = -1;
    int m_generation = 0;
    /// What the cell shows now; it is filled again only when either changes.
    int m_filledRow = -1;
    int m_filledGeneration = -1;
    QString m_clickURL;
    QString m_offerName;
    QString m_offerDescription;
    QString m_payoutTitle;
    /// Outlets: children of this cell, so they live exactly as long as it does.
    QVImageView *m_thumbImage = nullptr;
    QQuickItem *m_nameLabel = nullptr;
    QQuickItem *m_descriptionLabel = nullptr;
    QQuickItem *m_creditsBtn = nullptr;
    QQuickItem *m_containerView = nullptr;
};
