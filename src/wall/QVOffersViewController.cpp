#include "QVOffersViewController.h"
#include "QVAlertPresenter.h"
#include "QVComponentFactory.h"
#include "QVDevice.h"
#include "QVImageView.h"
#include "QVOffersListModel.h"
#include "QVPayoutFormatter.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"

#include <QtCore/QTimer>
#include <QtGui/QDesktopServices>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace {
constexpr QLatin1StringView kEarnFormat("Earn %1");
constexpr QLatin1StringView kAbsentText("(null)");
constexpr QLatin1StringView kOffersFailedLog("offers request failed");
constexpr QLatin1StringView kProfileFailedLog("Currency count request failed");
constexpr QLatin1StringView kAlertTitle("No Connection");
// The leading blank belongs to this screen's message.
constexpr QLatin1StringView kAlertMessage(" Please check your internet and try again.");
constexpr QLatin1StringView kAlertAction("Ok");

const QString kAgeRanges[] = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                              QStringLiteral("4"), QStringLiteral("5")};
} // namespace

QVOffersViewController::QVOffersViewController(QQuickItem *parent)
    : QQuickItem(parent), m_offers(new QVOffersListModel(this)), m_loadingIndicatorDelay(new QTimer(this))
{
    connect(m_offers, &QVOffersListModel::countChanged, this, &QVOffersViewController::offerCountChanged);
    m_loadingIndicatorDelay->setSingleShot(true);
    m_loadingIndicatorDelay->setInterval(kLoadingIndicatorDelayMs);
    connect(m_loadingIndicatorDelay, &QTimer::timeout, this, [this] {
        m_showsLoadingIndicator = m_loadingOffers;
        emit showsLoadingIndicatorChanged();
    });
}

int QVOffersViewController::offerCount() const
{
    return m_offers->count();
}

QVOffersViewController::~QVOffersViewController()
{
    // A popover closes as it goes; the wall is past hearing about it.
    for (QObject *popover : {m_filterPopover, m_supportPopover}) {
        if (popover) {
            popover->disconnect(this);
            delete popover;
        }
    }
}

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
    // Delegates the list builds ahead of need are built in the window's idle time rather
    // than inside a frame.
    if (change == ItemSceneChange && value.window) {
        if (QQmlEngine *engine = qmlEngine(this); engine && !engine->incubationController())
            engine->setIncubationController(value.window->incubationController());
    }
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
            const QString title = QString(kEarnFormat).arg(name);
            // An open overlay keeps its own title; the wall's comes back when it closes.
            if (self->m_isFiltersViewOpen || self->m_isSupportViewOpen)
                self->m_lastHeaderTitle = title;
            else
                self->setHeaderText(title);
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
    if (loading) {
        m_loadingIndicatorDelay->start();
    } else {
        m_loadingIndicatorDelay->stop();
        if (std::exchange(m_showsLoadingIndicator, false))
            emit showsLoadingIndicatorChanged();
    }
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

bool QVOffersViewController::configureCell(QVOfferUICollectionViewCell *cell, int row)
{
    if (!cell || row < 0 || row >= m_offers->count())
        return false;
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
    return true;
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

