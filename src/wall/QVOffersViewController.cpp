// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOffersViewController.h"
#include "QVOffersViewControllerPrivate.h"
#include "AssignIfChanged.h"
#include "QVAlertPresenter.h"
#include "QVComponentFactory.h"
#include "QVCreditsWatcher.h"
#include "OfferWallPreloadState.h"
#include "QVDevice.h"
#include "DeviceIdiom.h"
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
#include <QtQml/QQmlContext>
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
    : QQuickItem(parent), m_d(std::make_unique<QVOffersViewControllerPrivate>())
{
    d_func()->m_offers = new QVOffersListModel(this);
    d_func()->m_loadingIndicatorDelay = new QTimer(this);
    connect(d_func()->m_offers, &QVOffersListModel::countChanged, this, &QVOffersViewController::offerCountChanged);
    d_func()->m_loadingIndicatorDelay->setSingleShot(true);
    d_func()->m_loadingIndicatorDelay->setInterval(kLoadingIndicatorDelayMs);
    connect(d_func()->m_loadingIndicatorDelay, &QTimer::timeout, this, [this] {
        d_func()->m_showsLoadingIndicator = d_func()->m_loadingOffers;
        emit showsLoadingIndicatorChanged();
    });
    d_func()->m_creditNoticeTimer = new QTimer(this);
    d_func()->m_creditNoticeTimer->setSingleShot(true);
    d_func()->m_creditNoticeTimer->setInterval(kCreditNoticeMs);
    connect(d_func()->m_creditNoticeTimer, &QTimer::timeout, this, &QVOffersViewController::dismissCreditNotice);
    d_func()->m_theme = QVTheme::system();
    // The host's default locale when the wall is made chooses its language.
    quorva::detail::useLanguageOf(QLocale());
    d_func()->m_rightToLeft = quorva::detail::libraryLocale().textDirection() == Qt::RightToLeft;
    // The palette changes when the system switches between light and dark.
    if (QCoreApplication *app = QCoreApplication::instance())
        app->installEventFilter(this);
    connect(QVDevice::instance(), &QVDevice::textScaleChanged, this, &QVOffersViewController::cellSizeChanged);
}

void QVOffersViewController::setTheme(const QVTheme &theme)
{
    d_func()->m_themeSet = true;
    if (d_func()->m_theme == theme)
        return;
    d_func()->m_theme = theme;
    emit themeChanged();
}

bool QVOffersViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance()
        && !d_func()->m_themeSet) {
        const QVTheme system = QVTheme::system();
        if (!(system == d_func()->m_theme)) {
            d_func()->m_theme = system;
            emit themeChanged();
        }
    }
    return QQuickItem::eventFilter(watched, event);
}

int QVOffersViewController::offerCount() const
{
    return d_func()->m_offers->count();
}

QVOffersViewController::~QVOffersViewController()
{
    // A popover closes as it goes; the wall is past hearing about it.
    for (QObject *popover : {d_func()->m_filterPopover, d_func()->m_supportPopover}) {
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
        wall->d_func()->m_preload = preload;
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
    // The name and three lines of task take 80 points of a cell; they grow with the text.
    constexpr qreal kTextPart = 80;
    const qreal payoutRow = QVOfferUICollectionViewCell::payoutBelowText() ? QVOfferUICollectionViewCell::kPayoutRowHeight : 0;
    if (viewWidth > kTwoColumnMinimumWidth)
        return {viewWidth * 0.5, quorva::detail::grownWithText(150, kTextPart) + payoutRow};
    return {viewWidth, quorva::detail::grownWithText(140, kTextPart) + payoutRow};
}

QAbstractItemModel *QVOffersViewController::offersModel() const { return d_func()->m_offers; }
const QList<QVOffer> &QVOffersViewController::offersList() const { return d_func()->m_offers->offers(); }

void QVOffersViewController::componentComplete()
{
    QQuickItem::componentComplete();
    // Declared in a document: load once the whole document is built, so that what its
    // Component.onCompleted handlers set (the service's address, a preload) applies to the
    // first request.
    if (window() && !d_func()->m_loaded)
        QMetaObject::invokeMethod(this, [this] {
            if (window() && !d_func()->m_loaded)
                viewDidLoad();
        }, Qt::QueuedConnection);
}

void QVOffersViewController::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    // Loading waits for the first window so that targeting set after creation applies
    // to the first request.
    if (change == ItemSceneChange && value.window && !d_func()->m_loaded && isComponentComplete())
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
    d_func()->m_loaded = true;
    d_func()->m_isFiltersViewOpen = false;
    d_func()->m_isSupportViewOpen = false;
    d_func()->m_offers->clear();
    d_func()->m_numberFormatter = std::make_unique<QVPayoutFormatter>();
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
    // A wall made by newOffersWallForPublisherId() was handed its preload; one QML
    // declared looks for it now that its identifiers are all set.
    QVOfferWallPreload *preload = d_func()->m_preload
        ? d_func()->m_preload.data()
        : QVOfferWallPreload::find(quorva::detail::ServiceIdentity::of(QuorvaRestAPI::sharedInstance()));
    d_func()->m_preload = nullptr;
    if (!preload || !preload->take(firstPage))
        return false;
    d_func()->m_preload = preload;
    d_func()->m_preloadOffersPending = true;
    d_func()->m_preloadProfilePending = true;
    setLoadingOffers(true);
    connect(preload, &QVOfferWallPreload::replyArrived, this, &QVOffersViewController::applyPreload);
    applyPreload();
    return true;
}

// Takes each reply of the preload as it would have taken its own request's.
void QVOffersViewController::applyPreload()
{
    if (!d_func()->m_preload)
        return;
    const QVOfferWallPreload::Private &preload = d_func()->m_preload->state();
    using Reply = QVOfferWallPreload::Private::Reply;
    if (d_func()->m_preloadOffersPending && preload.offersReply != Reply::Pending) {
        d_func()->m_preloadOffersPending = false;
        if (preload.offersReply == Reply::Arrived) {
            offersArrived(preload.offers, preload.moreOffers);
        } else {
            qCInfo(lcQuorva).noquote() << kOffersFailedLog;
            offersFailed();
        }
    }
    if (d_func()->m_preloadProfilePending && preload.profileReply != Reply::Pending) {
        d_func()->m_preloadProfilePending = false;
        if (preload.profileReply == Reply::Failed) {
            qCInfo(lcQuorva).noquote() << kProfileFailedLog;
            d_func()->m_profileFailed = true;
        } else if (preload.profile) {
            profileArrived(*preload.profile);
        }
    }
    if (!d_func()->m_preloadOffersPending && !d_func()->m_preloadProfilePending) {
        d_func()->m_preload->disconnect(this);
        d_func()->m_preload->release();
        d_func()->m_preload = nullptr;
    }
}

void QVOffersViewController::requestProfile()
{
    d_func()->m_profileFailed = false;
    QPointer<QVOffersViewController> self(this);
    QuorvaRestAPI::sharedInstance()->fetchProfile(
        [self](const QVProfile &profile) {
            if (self)
                self->profileArrived(profile);
        },
        [self] {
            qCInfo(lcQuorva).noquote() << kProfileFailedLog;
            if (self)
                self->d_func()->m_profileFailed = true;
        });
}

void QVOffersViewController::profileArrived(const QVProfile &profile)
{
    if (d_func()->m_currencyName != profile.currencyName()) {
        d_func()->m_currencyName = profile.currencyName();
        emit currencyNameChanged();
    }
    d_func()->m_profileArrived = true;
    const QString name = profile.currencyName().isNull() ? QString(kAbsentText) : profile.currencyName();
    const QString title = tr(kEarnFormat).arg(name);
    // An open overlay keeps its own title; the wall's comes back when it closes.
    if (d_func()->m_isFiltersViewOpen || d_func()->m_isSupportViewOpen)
        d_func()->m_lastHeaderTitle = title;
    else
        setHeaderText(title);
}

void QVOffersViewController::onRetryPressed()
{
    if (d_func()->m_profileFailed)
        requestProfile();
    loadMoreOffers();
}

void QVOffersViewController::setLoadingOffers(bool loading)
{
    if (d_func()->m_loadingOffers == loading)
        return;
    d_func()->m_loadingOffers = loading;
    emit loadingOffersChanged();
    if (loading) {
        d_func()->m_loadingIndicatorDelay->start();
    } else {
        d_func()->m_loadingIndicatorDelay->stop();
        if (std::exchange(d_func()->m_showsLoadingIndicator, false))
            emit showsLoadingIndicatorChanged();
    }
    updateLoadFailed();
}

void QVOffersViewController::setLastPageFailed(bool failed)
{
    d_func()->m_lastPageFailed = failed;
    updateLoadFailed();
}

void QVOffersViewController::updateLoadFailed()
{
    const bool failed = d_func()->m_lastPageFailed && d_func()->m_offers->count() == 0 && !d_func()->m_loadingOffers;
    if (d_func()->m_loadFailed == failed)
        return;
    d_func()->m_loadFailed = failed;
    emit loadFailedChanged();
}

void QVOffersViewController::loadMoreOffers()
{
    if (d_func()->m_loadingOffers)
        return; // dropped, not queued
    setLoadingOffers(true);

    QString category;
    bool featured = false;
    if (d_func()->m_categoryParam) {
        const QString name = d_func()->m_categoryParam->categoryName();
        if (name == QVFiltersViewController::featuredName())
            featured = true;
        else if (name != QVFiltersViewController::allCategoriesName())
            category = d_func()->m_categoryParam->categoryId();
    }
    const QString sort = d_func()->m_sortParam ? d_func()->m_sortParam->value() : QString();
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    sendOffersRequest(quorva::detail::ServiceRequests::offersRequest(
        api, quorva::detail::ServiceIdentity::of(api), quint64(d_func()->m_offers->count()), sort, category, featured));
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
    d_func()->m_moreOffersAvailable = more;
    d_func()->m_offers->append(offers);
    reloadData();
    setLastPageFailed(false);
    setLoadingOffers(false);
    if (!d_func()->m_offersShown && !d_func()->m_offersShownPending && d_func()->m_offers->count() > 0)
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
    d_func()->m_offersShownPending = true;
    d_func()->m_framesSinceFirstOffers = 0;
    // The first swap may end a frame that was under way before the offers arrived; the
    // second one shows them. Swaps come from the render thread as queued calls, so
    // several may already wait when the first runs, and the disconnect below does not
    // take them back: the flag, not the connection, makes the signal come once. A wall at
    // rest draws no more frames by itself, so the second one is asked for.
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(host, &QQuickWindow::frameSwapped, this, [this, connection] {
        if (d_func()->m_offersShown)
            return;
        if (++d_func()->m_framesSinceFirstOffers < 2) {
            if (window())
                window()->update();
            return;
        }
        disconnect(*connection);
        d_func()->m_offersShownPending = false;
        d_func()->m_offersShown = true;
        qCDebug(lcQuorvaDiagnostics, "first offers on screen");
        takeFirstFocus();
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
    // Any layout pass may decide the label, also one after a failed page: then the
    // wall says it could not load, never that there are no offers.
    if (d_func()->m_noOffersLabel)
        d_func()->m_noOffersLabel->setVisible(d_func()->m_offers->count() == 0 && !d_func()->m_loadingOffers
                                              && !d_func()->m_lastPageFailed);
    if (d_func()->m_rowsOrderPending)
        putRowsInScreenOrder();
}

bool QVOffersViewController::configureCell(QVOfferUICollectionViewCell *cell, int row)
{
    if (!cell || row < 0 || row >= d_func()->m_offers->count())
        return false;
    const QVOffer &offer = d_func()->m_offers->at(row);
    cell->setOfferName(offer.offerName());
    cell->setOfferDescription(offer.offerDescription());
    if (d_func()->m_numberFormatter)
        cell->setPayoutTitle(d_func()->m_numberFormatter->payoutTitle(offer.currencyCount()));
    if (cell->thumbImage())
        cell->thumbImage()->setImageWithURL(QUrl(offer.imageURL()));
    cell->setClickURL(offer.clickURL());
    cell->setDelegate(this);
    if (row == d_func()->m_offers->count() - 1 && d_func()->m_moreOffersAvailable)
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
    const QList<QVOffer> &offers = d_func()->m_offers->offers();
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
    if (d_func()->m_creditsWatcher == watcher)
        return;
    disconnect(d_func()->m_creditsConnection);
    d_func()->m_creditsWatcher = watcher;
    if (watcher)
        d_func()->m_creditsConnection = connect(watcher, &QVCreditsWatcher::creditsReceived, this,
                                      &QVOffersViewController::creditsReceived);
    emit creditsWatcherChanged();
}

QQmlContext *QVOffersViewController::overlayContext()
{
    // Panels, popovers and alerts read the wall's theme and direction by name. A wall
    // declared in a host's document has the host's context, where neither is found, so
    // what the wall makes gets a context of its own that looks in the wall first.
    if (!d_func()->m_overlayContext) {
        d_func()->m_overlayContext = new QQmlContext(qmlContext(this), this);
        d_func()->m_overlayContext->setContextObject(this);
    }
    return d_func()->m_overlayContext;
}

QString QVOffersViewController::language() const
{
    return d_func()->m_language;
}

void QVOffersViewController::setLanguage(const QString &language)
{
    if (d_func()->m_language == language)
        return;
    d_func()->m_language = language;
    quorva::detail::useLanguageOf(language.isEmpty() ? QLocale() : QLocale(language));
    d_func()->m_rightToLeft = quorva::detail::libraryLocale().textDirection() == Qt::RightToLeft;
    // Texts already made, here and in the library's own engine, follow the new language.
    QQmlEngine *engine = qmlEngine(this);
    if (engine)
        engine->retranslate();
    if (QVComponentFactory::hasSharedEngine() && QVComponentFactory::sharedEngine() != engine)
        QVComponentFactory::sharedEngine()->retranslate();
    // The title is made here rather than bound in the interface file.
    if (d_func()->m_profileArrived) {
        QVProfile profile;
        profile.setCurrencyName(d_func()->m_currencyName);
        profileArrived(profile);
    }
    emit languageChanged();
}

QVCreditsWatcher *QVOffersViewController::creditsWatcher() const
{
    return d_func()->m_creditsWatcher;
}

void QVOffersViewController::creditsReceived(const QList<QVTransaction> &transactions)
{
    if (!window() || !isVisible())
        return;
    // Several credits in a row add up to one notice; a reversal is not a credit.
    const double before = d_func()->m_creditNoticeShown ? d_func()->m_creditNoticeSum : 0;
    QStringList offers = d_func()->m_creditNoticeShown ? d_func()->m_creditNoticeOffers : QStringList();
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
    d_func()->m_creditNoticeSum = sum;
    d_func()->m_creditNoticeOffers = offers;
    const QString amount = QVPayoutFormatter().payoutTitle(QString::number(sum, 'g', 17));
    const QString text = d_func()->m_currencyName.isEmpty() ? amount : QString(kCreditFormat).arg(amount, d_func()->m_currencyName);
    setCreditNotice(true, text, offers.join(kCreditOffersSeparator));
    d_func()->m_creditNoticeTimer->start();
    if (d_func()->m_creditNotice) {
        QAccessibleEvent announcement(d_func()->m_creditNotice, QAccessible::Alert);
        QAccessible::updateAccessibility(&announcement);
    }
}

void QVOffersViewController::dismissCreditNotice()
{
    d_func()->m_creditNoticeTimer->stop();
    d_func()->m_creditNoticeSum = 0;
    d_func()->m_creditNoticeOffers.clear();
    setCreditNotice(false, d_func()->m_creditNoticeText, d_func()->m_creditNoticeDetail);
}

void QVOffersViewController::setCreditNotice(bool shown, const QString &text, const QString &detail)
{
    if (d_func()->m_creditNoticeShown == shown && d_func()->m_creditNoticeText == text && d_func()->m_creditNoticeDetail == detail)
        return;
    d_func()->m_creditNoticeShown = shown;
    d_func()->m_creditNoticeText = text;
    d_func()->m_creditNoticeDetail = detail;
    emit creditNoticeChanged();
}

void QVOffersViewController::onClosePressed()
{
    emit closePressed();
    if (d_func()->m_delegate)
        d_func()->m_delegate->onCloseOffersVCPressed();
}

void QVOffersViewController::showFailureAlert()
{
    QVAlertPresenter::present(this, tr(kAlertTitle), tr(kAlertMessage), tr(kAlertAction), overlayContext());
}

void QVOffersViewController::setHeaderText(const QString &text)
{
    if (d_func()->m_headerTitle)
        d_func()->m_headerTitle->setProperty("text", text);
}

QString QVOffersViewController::headerText() const
{
    return d_func()->m_headerTitle ? d_func()->m_headerTitle->property("text").toString() : QString();
}

bool QVOffersViewController::creditNoticeShown() const
{
    return d_func()->m_creditNoticeShown;
}

QString QVOffersViewController::creditNoticeText() const
{
    return d_func()->m_creditNoticeText;
}

QString QVOffersViewController::creditNoticeDetail() const
{
    return d_func()->m_creditNoticeDetail;
}

QVTheme QVOffersViewController::theme() const
{
    return d_func()->m_theme;
}

bool QVOffersViewController::isRightToLeft() const
{
    return d_func()->m_rightToLeft;
}

QVOffersViewControllerDelegate *QVOffersViewController::delegate() const
{
    return d_func()->m_delegate;
}

void QVOffersViewController::setDelegate(QVOffersViewControllerDelegate *delegate)
{
    d_func()->m_delegate = delegate;
}

bool QVOffersViewController::showsLoadingIndicator() const
{
    return d_func()->m_showsLoadingIndicator;
}

bool QVOffersViewController::loadingOffers() const
{
    return d_func()->m_loadingOffers;
}

bool QVOffersViewController::loadFailed() const
{
    return d_func()->m_loadFailed;
}

bool QVOffersViewController::isFiltersViewOpen() const
{
    return d_func()->m_isFiltersViewOpen;
}

bool QVOffersViewController::isOverlayAnimating() const
{
    return d_func()->m_runningSlides > 0;
}

bool QVOffersViewController::moreOffersAvailable() const
{
    return d_func()->m_moreOffersAvailable;
}

bool QVOffersViewController::isSupportViewOpen() const
{
    return d_func()->m_isSupportViewOpen;
}

QVFiltersViewController *QVOffersViewController::filterVC() const
{
    return d_func()->m_filterVC;
}

QVSupportViewController *QVOffersViewController::supportVC() const
{
    return d_func()->m_supportVC;
}

std::optional<QVSort> QVOffersViewController::sortParam() const
{
    return d_func()->m_sortParam;
}

std::optional<QVCategory> QVOffersViewController::categoryParam() const
{
    return d_func()->m_categoryParam;
}

QQuickItem *QVOffersViewController::headerView() const
{
    return d_func()->m_headerView;
}

void QVOffersViewController::setHeaderView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_headerView, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::headerTitle() const
{
    return d_func()->m_headerTitle;
}

void QVOffersViewController::setHeaderTitle(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_headerTitle, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::closeBtn() const
{
    return d_func()->m_closeBtn;
}

void QVOffersViewController::setCloseBtn(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_closeBtn, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::filterBtn() const
{
    return d_func()->m_filterBtn;
}

void QVOffersViewController::setFilterBtn(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_filterBtn, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::supportBtn() const
{
    return d_func()->m_supportBtn;
}

void QVOffersViewController::setSupportBtn(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_supportBtn, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::collectionView() const
{
    return d_func()->m_collectionView;
}

void QVOffersViewController::setCollectionView(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_collectionView, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::noOffersLabel() const
{
    return d_func()->m_noOffersLabel;
}

void QVOffersViewController::setNoOffersLabel(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_noOffersLabel, value))
        emit outletsChanged();
}

QObject *QVOffersViewController::filterPopover() const
{
    return d_func()->m_filterPopover;
}

void QVOffersViewController::setFilterPopover(QObject *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_filterPopover, value))
        emit outletsChanged();
}

QObject *QVOffersViewController::supportPopover() const
{
    return d_func()->m_supportPopover;
}

void QVOffersViewController::setSupportPopover(QObject *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_supportPopover, value))
        emit outletsChanged();
}

QQuickItem *QVOffersViewController::creditNotice() const
{
    return d_func()->m_creditNotice;
}

void QVOffersViewController::setCreditNotice(QQuickItem *value)
{
    if (quorva::detail::assignIfChanged(d_func()->m_creditNotice, value))
        emit outletsChanged();
}
