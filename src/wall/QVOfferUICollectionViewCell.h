#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

class QVImageView;
class QVOfferUICollectionViewCell;

// Told when the payout button of a cell is pressed.
class QUORVAMEDIA_EXPORT QVOfferUICollectionViewCellDelegate
{
public:
    virtual ~QVOfferUICollectionViewCellDelegate() = default;
    virtual void onCreditsPressed(const QString &clickURL) = 0;
    // Fills a cell with the offer at that place of the list; cells ask when they are
    // built or reused. False when there is no such offer (yet).
    virtual bool configureCell(QVOfferUICollectionViewCell *cell, int row) = 0;
};

// One offer of the wall: picture, name, description and a payout button on a card.
class QUORVAMEDIA_EXPORT QVOfferUICollectionViewCell : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVOfferUICollectionViewCellBase)
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY rowChanged FINAL)
    Q_PROPERTY(int generation READ generation WRITE setGeneration NOTIFY generationChanged FINAL)
    Q_PROPERTY(QObject *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged FINAL)
    Q_PROPERTY(QString clickURL READ clickURL WRITE setClickURL NOTIFY clickURLChanged FINAL)
    Q_PROPERTY(QString offerName READ offerName NOTIFY offerNameChanged FINAL)
    Q_PROPERTY(QString offerDescription READ offerDescription NOTIFY offerDescriptionChanged FINAL)
    Q_PROPERTY(QString payoutTitle READ payoutTitle NOTIFY payoutTitleChanged FINAL)
    Q_PROPERTY(QVImageView *thumbImage MEMBER m_thumbImage NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *nameLabel MEMBER m_nameLabel NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *descriptionLabel MEMBER m_descriptionLabel NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *creditsBtn MEMBER m_creditsBtn NOTIFY outletsChanged FINAL)
    Q_PROPERTY(QQuickItem *containerView MEMBER m_containerView NOTIFY outletsChanged FINAL)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius CONSTANT FINAL)
    Q_PROPERTY(qreal borderWidth READ borderWidth CONSTANT FINAL)
    Q_PROPERTY(QColor borderColor READ borderColor CONSTANT FINAL)
    Q_PROPERTY(qreal cardInset READ cardInset CONSTANT FINAL)

public:
    explicit QVOfferUICollectionViewCell(QQuickItem *parent = nullptr);

    static QString identifier() { return QStringLiteral("QVOfferUICollectionViewCell"); }
    static double cellHeight() { return 120.0; }
    static qreal cornerRadius() { return 6.0; }
    static qreal borderWidth() { return 1.0; }
    static QColor borderColor() { return QColor(Qt::transparent); }
    static qreal cardInset() { return 6.0; }

    QVOfferUICollectionViewCellDelegate *delegate() const { return m_delegate; }
    void setDelegate(QVOfferUICollectionViewCellDelegate *delegate) { m_delegate = delegate; }

    // The offer's place in the wall's list.
    int row() const { return m_row; }
    void setRow(int row);
    // Changes when what the cell should show may have changed without its place.
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

    QVImageView *thumbImage() const { return m_thumbImage; }
    QQuickItem *creditsBtn() const { return m_creditsBtn; }

    // The payout button's action.
    Q_INVOKABLE void onCreditsBtnPressed();

signals:
    void rowChanged();
    void generationChanged();
    void dataSourceChanged();
    void clickURLChanged();
    void offerNameChanged();
    void offerDescriptionChanged();
    void payoutTitleChanged();
    void outletsChanged();

protected:
    void componentComplete() override;

private:
    template <typename Signal>
    Q_DECL_HIDDEN void assign(QString &field, const QString &value, Signal changed);
    Q_DECL_HIDDEN void configure();

    QVOfferUICollectionViewCellDelegate *m_delegate = nullptr;
    QPointer<QObject> m_dataSource;
    int m_row = -1;
    int m_generation = 0;
    // What the cell shows now; it is filled again only when either changes.
    int m_filledRow = -1;
    int m_filledGeneration = -1;
    QString m_clickURL;
    QString m_offerName;
    QString m_offerDescription;
    QString m_payoutTitle;
    // Outlets: children of this cell, so they live exactly as long as it does.
    QVImageView *m_thumbImage = nullptr;
    QQuickItem *m_nameLabel = nullptr;
    QQuickItem *m_descriptionLabel = nullptr;
    QQuickItem *m_creditsBtn = nullptr;
    QQuickItem *m_containerView = nullptr;
};
