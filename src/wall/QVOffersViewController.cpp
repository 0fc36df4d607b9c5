#include "QVOffersViewController.h"
#include "QVAlertPresenter.h"
#include "QVComponentFactory.h"
#include "QVDevice.h"
#include "QVImageView.h"
#include "QVOffersListModel.h"
#include "QVPayoutFormatter.h"
#include "QVSpringCurve.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QPropertyAnimation>
#include <QtGui/QDesktopServices>
#include <QtQml/QQmlEngine>

namespace {
constexpr QLatin1StringView kEarnFormat("Earn %1");
constexpr QLatin1StringView kAbsentText("(null)");
constexpr QLatin1StringView kFiltersTitle("Sort/Filter Offers");
constexpr QLatin1StringView kOffersFailedLog("offers request failed");
constexpr QLatin1StringView kProfileFailedLog("Currency count request failed");
constexpr QLatin1StringView kAlertTitle("No Connection");
// The leading blank belongs to this screen's message.
constexpr QLatin1StringView kAlertMessage(" Please check your internet and try again.");
constexpr QLatin1StringView kAlertAction("Ok");
constexpr QLatin1StringView kBlurViewType("QVBlurView");
constexpr QLatin1StringView kFiltersType("QVFiltersViewController");
constexpr qreal kTwoColumnMinimumWidth = 600;
constexpr qreal kPopoverMargin = 8;
constexpr int kNoAutoClose = 0;                  // Popup.NoAutoClose
constexpr int kPlatformClosePolicy = 0x1 | 0x10; // Popup.CloseOnEscape | Popup.CloseOnPressOutside

const QString kAgeRanges[] = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                              QStringLiteral("4"), QStringLiteral("5")};
} // namespace

QVOffersViewController::QVOffersViewController(QQuickItem *parent)
    : QQuickItem(parent), m_offers(new QVOffersListModel(this))
{
}

QVOffersViewController::~QVOffersViewController() = default;

QVOffersViewController *QVOffersViewController::newOffersWallForPublisherId(const QString &pubId,
                                                                           const QString &corvelId,
                                                                           const QString &subId1,
                                                                           QVOffersViewControllerDelegate *delegate)
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setPubId(pubId);
    api->setCorvelId(corvelId);
    api->setSubId1(subId1);
    auto *wall = QVComponentFactory::create<QVOffersViewController>(QVComponentFactory::sharedEngine(), identifier());
    if (wall)
        wall->setDelegate(delegate);
    return wall;
}

QString QVOffersViewController::pubId() const { return QuorvaRestAPI::sharedInstance()->pubId(); }
QString QVOffersViewController::corvelId() const { return QuorvaRestAPI::sharedInstance()->corvelId(); }
QString QVOffersViewController::subId1() const { return QuorvaRestAPI::sharedInstance()->subId1(); }

void QVOffersViewController::setPubId(const QString &value)
{
    if (pubId() == value)
        return;
    QuorvaRestAPI::sharedInstance()->setPubId(value);
    emit identifiersChanged();
}

void QVOffersViewController::setCorvelId(const QString &value)
{
    if (corvelId() == value)
        return;
    QuorvaRestAPI::sharedInstance()->setCorvelId(value);
    emit identifiersChanged();
}

void QVOffersViewController::setSubId1(const QString &value)
{
    if (subId1() == value)
        return;
    QuorvaRestAPI::sharedInstance()->setSubId1(value);
    emit identifiersChanged();
}

void QVOffersViewController::setGender(int gender)
{
    QuorvaRestAPI::sharedInstance()->setGender(gender == 0   ? QStringLiteral("m")
                                               : gender == 1 ? QStringLiteral("f")
                                                             : QString());
}

void QVOffersViewController::setAgeRange(int ageRange)
{
    QuorvaRestAPI::sharedInstance()->setAgeRange(ageRange >= 0 && ageRange < 5 ? kAgeRanges[ageRange] : QString());
}

void QVOffersViewController::setSubid2(const QString &value) { QuorvaRestAPI::sharedInstance()->setSubId2(value); }
void QVOffersViewController::setSubid3(const QString &value) { QuorvaRestAPI::sharedInstance()->setSubId3(value); }
void QVOffersViewController::setSubid4(const QString &value) { QuorvaRestAPI::sharedInstance()->setSubId4(value); }

QSizeF QVOffersViewController::sizeForItem(qreal viewWidth)
{
    if (viewWidth > kTwoColumnMinimumWidth)
        return {viewWidth * 0.5, 150};
    return {viewWidth, 140};
}

QAbstractItemModel *QVOffersViewController::offersModel() const { return m_offers; }
const QList<QVOffer> &QVOffersViewController::offersList() const { return m_offers->offers(); }

void QVOffersViewController::componentComplete()
{
    QQuickItem::componentComplete();
    if (window() && !m_loaded)
        viewDidLoad();
}

void QVOffersViewController::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    // Loading waits for the first window so that targeting set after creation applies
    // to the first request.
    if (change == ItemSceneChange && value.window && !m_loaded && isComponentComplete())
        viewDidLoad();
}

void QVOffersViewController::viewDidLoad()
{
    m_loaded = true;
    m_isFiltersViewOpen = false;
    m_isSupportViewOpen = false;
    m_offers->clear();
    loadMoreOffers();
    m_numberFormatter = std::make_unique<QVPayoutFormatter>();
    setHeaderText(QStringLiteral(""));
    requestProfile();
}

void QVOffersViewController::requestProfile()
{
    m_profileFailed = false;
    QPointer<QVOffersViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchProfile(
        [self](const QVProfile &profile) {
            if (!self)
                return;
            const QString name = profile.currencyName().isNull() ? QString(kAbsentText) : profile.currencyName();
            self->setHeaderText(QString(kEarnFormat).arg(name));
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kProfileFailedLog;
            if (self)
                self->m_profileFailed = true;
        });
}

void QVOffersViewController::onRetryPressed()
{
    if (m_profileFailed)
        requestProfile();
    loadMoreOffers();
}

void QVOffersViewController::setLoadingOffers(bool loading)
{
    if (m_loadingOffers == loading)
        return;
    m_loadingOffers = loading;
    emit loadingOffersChanged();
    updateLoadFailed();
}

void QVOffersViewController::setLastPageFailed(bool failed)
{
    m_lastPageFailed = failed;
    updateLoadFailed();
}

void QVOffersViewController::updateLoadFailed()
{
    const bool failed = m_lastPageFailed && m_offers->count() == 0 && !m_loadingOffers;
    if (m_loadFailed == failed)
        return;
    m_loadFailed = failed;
    emit loadFailedChanged();
}

void QVOffersViewController::loadMoreOffers()
{
    if (m_loadingOffers)
        return; // dropped, not queued
    setLoadingOffers(true);

    QString category;
    bool featured = false;
    if (m_categoryParam) {
        const QString name = m_categoryParam->categoryName();
        if (name == QVFiltersViewController::featuredName())
            featured = true;
        else if (name != QVFiltersViewController::allCategoriesName())
            category = m_categoryParam->categoryId();
    }
    const QString sort = m_sortParam ? m_sortParam->value() : QString();

    QPointer<QVOffersViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchOffers(
        quint64(m_offers->count()), sort, category, featured,
        [self](const QList<QVOffer> &offers, bool more) {
            if (!self)
                return;
            self->m_moreOffersAvailable = more;
            self->m_offers->append(offers);
            self->reloadData();
            self->setLastPageFailed(false);
            self->setLoadingOffers(false);
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kOffersFailedLog;
            if (!self)
                return;
            self->setLastPageFailed(true);
            self->setLoadingOffers(false);
            self->showFailureAlert();
        });
}

void QVOffersViewController::reloadData()
{
    // The list asks for its count on its next layout pass, after the caller has
    // finished updating its state: the empty label is decided then.
    polish();
    if (!window())
        QMetaObject::invokeMethod(this, &QVOffersViewController::updatePolish, Qt::QueuedConnection);
}

void QVOffersViewController::updatePolish()
{
    if (m_noOffersLabel)
        m_noOffersLabel->setVisible(m_offers->count() == 0 && !m_loadingOffers);
}

void QVOffersViewController::configureCell(QVOfferUICollectionViewCell *cell, int row)
{
    if (!cell || row < 0 || row >= m_offers->count())
        return;
    const QVOffer &offer = m_offers->at(row);
    cell->setOfferName(offer.offerName());
    cell->setOfferDescription(offer.offerDescription());
    if (m_numberFormatter)
        cell->setPayoutTitle(m_numberFormatter->payoutTitle(offer.currencyCount()));
    if (cell->thumbImage())
        cell->thumbImage()->setImageWithURL(QUrl(offer.imageURL()));
    cell->setClickURL(offer.clickURL());
    cell->setDelegate(this);
    if (row == m_offers->count() - 1 && m_moreOffersAvailable)
        loadMoreOffers();
}

void QVOffersViewController::onCreditsPressed(const QString &clickURL)
{
    const QUrl url(clickURL, QUrl::StrictMode);
    if (url.isValid() && !url.isEmpty())
        QDesktopServices::openUrl(url);
}

void QVOffersViewController::onClosePressed()
{
    emit closePressed();
    if (m_delegate)
        m_delegate->onCloseOffersVCPressed();
}

void QVOffersViewController::showFailureAlert()
{
    QVAlertPresenter::present(this, kAlertTitle, kAlertMessage, kAlertAction);
}

void QVOffersViewController::setHeaderText(const QString &text)
{
    if (m_headerTitle)
        m_headerTitle->setProperty("text", text);
}

QString QVOffersViewController::headerText() const
{
    return m_headerTitle ? m_headerTitle->property("text").toString() : QString();
}

qreal QVOffersViewController::listHeight() const
{
    return m_collectionView ? m_collectionView->height() : height();
}

void QVOffersViewController::headerTapped()
{
    if (m_isFiltersViewOpen)
        closeFiltersView();
    if (m_isSupportViewOpen)
        closeSupportView();
}

void QVOffersViewController::onFilterPressed()
{
    if (m_isSupportViewOpen) {
        closeSupportView();
        return;
    }
    if (!m_isFiltersViewOpen) {
        auto *panel = QVComponentFactory::create<QVFiltersViewController>(qmlEngine(this), kFiltersType);
        if (!panel)
            return;
        // Owned by the wall: a panel still sliding out when the wall goes goes with it.
        panel->setParent(this);
        panel->setDelegate(this);
        panel->setCategoryParam(m_categoryParam);
        panel->setSortParam(m_sortParam);
        // On a phone the panel's rows begin below the wall's header.
        panel->setTopMargin(headerHeight());
        panel->viewDidLoad();
        m_filterVC = panel;
    }
    if (QVDevice::isTablet()) {
        presentFilterPopover();
        return;
    }
    if (m_isFiltersViewOpen) {
        closeFiltersView();
        return;
    }

    m_lastHeaderTitle = headerText();
    setHeaderText(kFiltersTitle);
    QVFiltersViewController *panel = m_filterVC;
    panel->setParentItem(this);
    panel->setClip(true);
    panel->setZ(1);
    if (m_headerView)
        m_headerView->setZ(2); // the header stays above the panel
    m_blurView = QVComponentFactory::create<QQuickItem>(
        qmlEngine(this), kBlurViewType, {{QStringLiteral("sourceItem"), QVariant::fromValue(m_collectionView)}});
    if (m_blurView) {
        m_blurView->setParent(panel);
        m_blurView->setParentItem(panel);
        m_blurView->setZ(-1);
        connect(panel, &QQuickItem::yChanged, this, &QVOffersViewController::layoutFilterPanel);
    }
    panel->setY(-listHeight());
    layoutFilterPanel();
    slideFilterPanel(0, true);
    if (m_closeBtn)
        m_closeBtn->setVisible(false);
    m_isFiltersViewOpen = true;
    emit overlaysChanged();
}

void QVOffersViewController::layoutFilterPanel()
{
    if (!m_filterVC || m_filterVC->parentItem() != this)
        return;
    m_filterVC->setX(0);
    m_filterVC->setSize(size());
    // The blur stays over the list while the panel moves, so the panel shows the
    // blurred content beneath it.
    if (m_blurView && m_blurView->parentItem() == m_filterVC && m_collectionView) {
        m_blurView->setPosition(m_collectionView->position() - m_filterVC->position());
        m_blurView->setSize(m_collectionView->size());
    }
}

void QVOffersViewController::slideFilterPanel(qreal toY, bool open)
{
    // Only a motion of this same panel is replaced; an earlier panel that is still
    // sliding out finishes and detaches itself.
    if (m_filterAnimation && m_filterAnimation->targetObject() == m_filterVC)
        m_filterAnimation->stop();
    const auto motion = open ? QVSpringCurve::Motion::FilterPanelOpen : QVSpringCurve::Motion::PanelSlide;
    auto *animation = new QPropertyAnimation(m_filterVC, "y", m_filterVC);
    animation->setDuration(int(QVSpringCurve::parameters(motion).durationSeconds * 1000));
    animation->setEasingCurve(QVSpringCurve::curve(motion));
    animation->setStartValue(m_filterVC->y());
    animation->setEndValue(toY);
    if (!open) {
        // Detach the panel that slid out, not whichever panel is current by then.
        QPointer<QVFiltersViewController> panel = m_filterVC;
        connect(animation, &QPropertyAnimation::finished, this, [panel] {
            if (panel)
                panel->deleteLater();
        });
    }
    m_filterAnimation = animation;
    trackSlide(animation);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void QVOffersViewController::trackSlide(QAbstractAnimation *animation)
{
    if (m_runningSlides++ == 0)
        emit overlayAnimatingChanged();
    // Stopped or replaced, an animation is destroyed once; that ends its slide.
    connect(animation, &QObject::destroyed, this, [this] {
        if (--m_runningSlides == 0)
            emit overlayAnimatingChanged();
    });
}

void QVOffersViewController::closeFiltersView()
{
    if (m_filterVC && m_filterVC->parentItem() == this)
        slideFilterPanel(-listHeight(), false);
    if (m_closeBtn)
        m_closeBtn->setVisible(true);
    m_isFiltersViewOpen = false;
    setHeaderText(m_lastHeaderTitle);
    emit overlaysChanged();
}

void QVOffersViewController::closeSupportView()
{
    // The support centre is not part of the wall yet; nothing can be open.
    m_isSupportViewOpen = false;
}

void QVOffersViewController::onSupportPressed()
{
    if (m_isFiltersViewOpen) {
        closeFiltersView();
        return;
    }
}

void QVOffersViewController::presentFilterPopover()
{
    auto *content = m_filterPopover ? m_filterPopover->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!content || !m_filterVC)
        return;
    // Anchored under the pressed button with its arrow pointing up at it.
    const QRectF button = m_filterBtn ? m_filterBtn->mapRectToItem(this, m_filterBtn->boundingRect()) : QRectF();
    const qreal popoverX = qBound(kPopoverMargin, button.center().x() - popoverWidth() / 2,
                                  qMax(kPopoverMargin, width() - popoverWidth() - kPopoverMargin));
    m_filterPopover->setProperty("x", popoverX);
    m_filterPopover->setProperty("y", button.bottom());
    m_filterPopover->setProperty("width", popoverWidth());
    m_filterPopover->setProperty("height", height() * popoverHeightRatio());
    m_filterPopover->setProperty("arrowX", button.center().x() - popoverX);
    m_filterPopover->setProperty("closePolicy", kPlatformClosePolicy);

    QVFiltersViewController *panel = m_filterVC;
    panel->setParentItem(content);
    panel->setPosition({0, 0});
    panel->setSize(content->size());
    connect(content, &QQuickItem::widthChanged, panel, [panel, content] { panel->setWidth(content->width()); });
    connect(content, &QQuickItem::heightChanged, panel, [panel, content] { panel->setHeight(content->height()); });
    QMetaObject::invokeMethod(m_filterPopover, "open");
}

void QVOffersViewController::popoverDidPresent()
{
    // Once presented, a tap outside no longer closes it.
    if (m_filterPopover)
        m_filterPopover->setProperty("closePolicy", kNoAutoClose);
}

void QVOffersViewController::popoverDidDismiss()
{
    if (m_filterPopover)
        m_filterPopover->setProperty("closePolicy", kPlatformClosePolicy);
    // The panel in the popover goes with it; the next press builds a new one.
    if (m_filterVC && m_filterVC->parentItem() != this) {
        m_filterVC->setParentItem(nullptr);
        m_filterVC->deleteLater();
    }
}

void QVOffersViewController::dismissFilterPopover()
{
    if (!m_filterPopover)
        return;
    m_filterPopover->setProperty("closePolicy", kPlatformClosePolicy);
    QMetaObject::invokeMethod(m_filterPopover, "close");
}

void QVOffersViewController::onSaveFiltersPressed(const std::optional<QVCategory> &category, const QVSort &sort)
{
    m_categoryParam = category;
    m_sortParam = sort;
    m_offers->clear();
    updateLoadFailed();
    reloadData();
    loadMoreOffers();
    if (m_closeBtn)
        m_closeBtn->setVisible(true);
    closeFiltersView();
    if (QVDevice::isTablet())
        dismissFilterPopover();
}

void QVOffersViewController::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    emit cellSizeChanged();
    layoutFilterPanel();
    // A size transition (rotation) takes a presented popover away.
    if (m_filterPopover && m_filterPopover->property("visible").toBool()
        && m_filterPopover->property("closePolicy").toInt() == kNoAutoClose)
        dismissFilterPopover();
}
