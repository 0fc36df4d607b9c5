#include "QVOffersViewController.h"
#include "QVAlertPresenter.h"
#include "QVComponentFactory.h"
#include "QVCreditsWatcher.h"
#include "OfferWallPreloadState.h"
#include "QVDevice.h"
#include "QVImageView.h"
#include "QVLanguage.h"
#include "QVOffersListModel.h"
#include "QVPayoutFormatter.h"
#include "QuorvaLog.h"
#include "QuorvaRestAPI.h"
#include "ServiceRequests.h"

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace {
constexpr const char *kEarnFormat = QT_TRANSLATE_NOOP("QVOffersViewController", "Earn %1");
constexpr QLatin1StringView kAbsentText("(null)");
constexpr QLatin1StringView kOffersFailedLog("offers request failed");
constexpr QLatin1StringView kProfileFailedLog("Currency count request failed");
constexpr const char *kAlertTitle = QT_TRANSLATE_NOOP("QVOffersViewController", "No Connection");
// The leading blank belongs to this screen's message.
constexpr const char *kAlertMessage = QT_TRANSLATE_NOOP("QVOffersViewController", " Please check your internet and try again.");
constexpr const char *kAlertAction = QT_TRANSLATE_NOOP("QVOffersViewController", "Ok");
constexpr QLatin1StringView kCreditFormat("%1 %2");
constexpr QLatin1StringView kCreditOffersSeparator(", ");

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
    m_creditNoticeTimer = new QTimer(this);
    m_creditNoticeTimer->setSingleShot(true);
    m_creditNoticeTimer->setInterval(kCreditNoticeMs);
    connect(m_creditNoticeTimer, &QTimer::timeout, this, &QVOffersViewController::dismissCreditNotice);
    m_theme = QVTheme::system();
    // The host's default locale when the wall is made chooses its language.
    quorva::detail::useLanguageOf(QLocale());
    m_rightToLeft = quorva::detail::libraryLocale().textDirection() == Qt::RightToLeft;
    // The palette changes when the system switches between light and dark.
    if (QCoreApplication *app = QCoreApplication::instance())
        app->installEventFilter(this);
}

void QVOffersViewController::setTheme(const QVTheme &theme)
{
    m_themeSet = true;
    if (m_theme == theme)
        return;
    m_theme = theme;
    emit themeChanged();
}

bool QVOffersViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance()
        && !m_themeSet) {
        const QVTheme system = QVTheme::system();
        if (!(system == m_theme)) {
            m_theme = system;
            emit themeChanged();
        }
    }
    return QQuickItem::eventFilter(watched, event);
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
    // A preload for these identifiers may have built the wall already; whether it also
    // gives its replies is decided when the wall loads.
    QVOfferWallPreload *preload = QVOfferWallPreload::find(quorva::detail::ServiceIdentity::of(api));
    QVOffersViewController *wall = preload ? qobject_cast<QVOffersViewController *>(preload->takeBuiltWall()) : nullptr;
    if (!wall)
        wall = QVComponentFactory::create<QVOffersViewController>(QVComponentFactory::sharedEngine(), identifier());
    if (wall) {
        wall->setDelegate(delegate);
        wall->m_preload = preload;
    }
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
    m_numberFormatter = std::make_unique<QVPayoutFormatter>();
    // The first page as this wall would send it; a preload of the very same request
    // stands in for it and for the profile.
    quorva::detail::TransferRequest firstPage = quorva::detail::ServiceRequests::offersRequest(
        QuorvaRestAPI::sharedInstance(), quorva::detail::ServiceIdentity::of(QuorvaRestAPI::sharedInstance()), 0,
        QString(), QString(), false);
    setHeaderText(QStringLiteral(""));
    if (takePreload(firstPage))
        return;
    setLoadingOffers(true);
    sendOffersRequest(std::move(firstPage));
    requestProfile();
}

bool QVOffersViewController::takePreload(const quorva::detail::TransferRequest &firstPage)
{
    QVOfferWallPreload *preload = m_preload;
    m_preload = nullptr;
    if (!preload || !preload->take(firstPage))
        return false;
    m_preload = preload;
    m_preloadOffersPending = true;
    m_preloadProfilePending = true;
    setLoadingOffers(true);
    connect(preload, &QVOfferWallPreload::replyArrived, this, &QVOffersViewController::applyPreload);
    applyPreload();
    return true;
}

// Takes each reply of the preload as it would have taken its own request's.
void QVOffersViewController::applyPreload()
{
    if (!m_preload)
        return;
    const QVOfferWallPreload::Private &preload = m_preload->state();
    using Reply = QVOfferWallPreload::Private::Reply;
    if (m_preloadOffersPending && preload.offersReply != Reply::Pending) {
        m_preloadOffersPending = false;
        if (preload.offersReply == Reply::Arrived) {
            offersArrived(preload.offers, preload.moreOffers);
        } else {
            qCInfo(lcQuorva).noquote() << kOffersFailedLog;
            offersFailed();
        }
    }
    if (m_preloadProfilePending && preload.profileReply != Reply::Pending) {
        m_preloadProfilePending = false;
        if (preload.profileReply == Reply::Failed) {
            qCInfo(lcQuorva).noquote() << kProfileFailedLog;
            m_profileFailed = true;
        } else if (preload.profile) {
            profileArrived(*preload.profile);
        }
    }
    if (!m_preloadOffersPending && !m_preloadProfilePending) {
        m_preload->disconnect(this);
        m_preload->release();
        m_preload = nullptr;
    }
}

void QVOffersViewController::requestProfile()
{
    m_profileFailed = false;
    QPointer<QVOffersViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchProfile(
        [self](const QVProfile &profile) {
            if (self)
                self->profileArrived(profile);
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kProfileFailedLog;
            if (self)
                self->m_profileFailed = true;
        });
}

void QVOffersViewController::profileArrived(const QVProfile &profile)
{
    m_currencyName = profile.currencyName();
    const QString name = profile.currencyName().isNull() ? QString(kAbsentText) : profile.currencyName();
    const QString title = tr(kEarnFormat).arg(name);
    // An open overlay keeps its own title; the wall's comes back when it closes.
    if (m_isFiltersViewOpen || m_isSupportViewOpen)
        m_lastHeaderTitle = title;
    else
        setHeaderText(title);
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
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    sendOffersRequest(quorva::detail::ServiceRequests::offersRequest(
        api, quorva::detail::ServiceIdentity::of(api), quint64(m_offers->count()), sort, category, featured));
}

void QVOffersViewController::sendOffersRequest(quorva::detail::TransferRequest request)
{
    QPointer<QVOffersViewController> self(this);
    quorva::detail::ServiceRequests::sendOffers(
        QuorvaRestAPI::sharedInstance(), std::move(request),
        [self](const QList<QVOffer> &offers, bool more) {
            if (self)
                self->offersArrived(offers, more);
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kOffersFailedLog;
            if (self)
                self->offersFailed();
        });
}

void QVOffersViewController::offersArrived(const QList<QVOffer> &offers, bool more)
{
    m_moreOffersAvailable = more;
    m_offers->append(offers);
    reloadData();
    setLastPageFailed(false);
    setLoadingOffers(false);
    if (!m_offersShown && !m_offersShownPending && m_offers->count() > 0)
        watchForFirstOffersOnScreen();
}

void QVOffersViewController::offersFailed()
{
    setLastPageFailed(true);
    setLoadingOffers(false);
    showFailureAlert();
}

void QVOffersViewController::watchForFirstOffersOnScreen()
{
    QQuickWindow *host = window();
    if (!host)
        return;
    m_offersShownPending = true;
    m_framesSinceFirstOffers = 0;
    // The first swap may end a frame that was under way before the offers arrived; the
    // second one shows them. Swaps come from the render thread as queued calls, so
    // several may already wait when the first runs, and the disconnect below does not
    // take them back: the flag, not the connection, makes the signal come once.
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(host, &QQuickWindow::frameSwapped, this, [this, connection] {
        if (m_offersShown || ++m_framesSinceFirstOffers < 2)
            return;
        disconnect(*connection);
        m_offersShownPending = false;
        m_offersShown = true;
        emit offersShown();
    }, Qt::QueuedConnection);
    host->update();
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
    if (!url.isValid() || url.isEmpty())
        return;
    QDesktopServices::openUrl(url);
    // The cell names its offer by its address; the first offer with it is the one shown.
    const QList<QVOffer> &offers = m_offers->offers();
    const auto offer = std::find_if(offers.cbegin(), offers.cend(),
                                    [&clickURL](const QVOffer &o) { return o.clickURL() == clickURL; });
    if (offer != offers.cend()) {
        emit offerOpened(*offer);
    } else {
        QVOffer opened;
        opened.setClickURL(clickURL);
        emit offerOpened(opened);
    }
}

void QVOffersViewController::setCreditsWatcher(QVCreditsWatcher *watcher)
{
    if (m_creditsWatcher == watcher)
        return;
    disconnect(m_creditsConnection);
    m_creditsWatcher = watcher;
    if (watcher)
        m_creditsConnection = connect(watcher, &QVCreditsWatcher::creditsReceived, this,
                                      &QVOffersViewController::creditsReceived);
}

QVCreditsWatcher *QVOffersViewController::creditsWatcher() const
{
    return m_creditsWatcher;
}

void QVOffersViewController::creditsReceived(const QList<QVTransaction> &transactions)
{
    if (!window() || !isVisible())
        return;
    // Several credits in a row add up to one notice; a reversal is not a credit.
    const double before = m_creditNoticeShown ? m_creditNoticeSum : 0;
    QStringList offers = m_creditNoticeShown ? m_creditNoticeOffers : QStringList();
    double sum = before;
    for (const QVTransaction &transaction : transactions) {
        const double amount = transaction.currencyAdjustment().toDouble();
        if (amount <= 0)
            continue;
        sum += amount;
        if (!transaction.offerName().isEmpty())
            offers.append(transaction.offerName());
    }
    if (sum == before)
        return;
    m_creditNoticeSum = sum;
    m_creditNoticeOffers = offers;
    const QString amount = QVPayoutFormatter().payoutTitle(QString::number(sum, 'g', 17));
    const QString text = m_currencyName.isEmpty() ? amount : QString(kCreditFormat).arg(amount, m_currencyName);
    setCreditNotice(true, text, offers.join(kCreditOffersSeparator));
    m_creditNoticeTimer->start();
    if (m_creditNotice) {
        QAccessibleEvent announcement(m_creditNotice, QAccessible::Alert);
        QAccessible::updateAccessibility(&announcement);
    }
}

void QVOffersViewController::dismissCreditNotice()
{
    m_creditNoticeTimer->stop();
    m_creditNoticeSum = 0;
    m_creditNoticeOffers.clear();
    setCreditNotice(false, m_creditNoticeText, m_creditNoticeDetail);
}

void QVOffersViewController::setCreditNotice(bool shown, const QString &text, const QString &detail)
{
    if (m_creditNoticeShown == shown && m_creditNoticeText == text && m_creditNoticeDetail == detail)
        return;
    m_creditNoticeShown = shown;
    m_creditNoticeText = text;
    m_creditNoticeDetail = detail;
    emit creditNoticeChanged();
}

void QVOffersViewController::onClosePressed()
{
    emit closePressed();
    if (m_delegate)
        m_delegate->onCloseOffersVCPressed();
}

void QVOffersViewController::showFailureAlert()
{
    QVAlertPresenter::present(this, tr(kAlertTitle), tr(kAlertMessage), tr(kAlertAction));
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

