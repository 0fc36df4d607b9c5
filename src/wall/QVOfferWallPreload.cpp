// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVOfferWallPreload.h"
#include "OfferWallPreloadState.h"
#include "QVComponentFactory.h"
#include "QVOffersViewController.h"
#include "QVOfferUICollectionViewCell.h"
#include "QuorvaLog.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlIncubator>
#include <QtQuick/QQuickItem>

using quorva::detail::ServiceIdentity;
using quorva::detail::ServiceRequests;
using quorva::detail::TransferRequest;
using Reply = QVOfferWallPreload::Private::Reply;

namespace {
constexpr QLatin1StringView kIncompleteWarning(
    "offer wall preload needs a publisher, a wall and a user identifier; it has failed");
constexpr QLatin1StringView kBuildWarning("offer wall preload could not build the wall:");
// The most the idle-time building takes of the GUI thread at a time.
constexpr int kSliceMs = 4;

std::chrono::milliseconds g_maximumAge = std::chrono::minutes(5);

// At most one current preload per set of identifiers.
QList<QPointer<QVOfferWallPreload>> &registry()
{
    static QList<QPointer<QVOfferWallPreload>> preloads;
    return preloads;
}

// Incubates in slices from the event loop when nothing else waits, so building ahead
// never holds up the host's own work for more than a slice.
class IdleIncubationController : public QObject, public QQmlIncubationController
{
public:
    IdleIncubationController()
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] {
            incubateFor(kSliceMs);
            if (incubatingObjectCount() > 0)
                m_timer.start();
        });
    }

protected:
    void incubatingObjectCountChanged(int count) override
    {
        if (count > 0 && !m_timer.isActive())
            m_timer.start();
    }

private:
    QTimer m_timer;
};

class WallIncubator : public QQmlIncubator
{
public:
    explicit WallIncubator(std::function<void(QQmlIncubator::Status)> changed)
        : QQmlIncubator(Asynchronous), m_changed(std::move(changed))
    {
    }

protected:
    void statusChanged(Status status) override { m_changed(status); }

private:
    std::function<void(QQmlIncubator::Status)> m_changed;
};
} // namespace

void quorva::detail::setPreloadMaximumAge(std::chrono::milliseconds age)
{
    g_maximumAge = age;
}

QVOfferWallPreload *QVOffersViewController::preloadForPublisherId(const QString &pubId, const QString &corvelId,
                                                                   const QString &subId1)
{
    return QVOfferWallPreload::start(pubId, corvelId, subId1);
}

QVOfferWallPreload::QVOfferWallPreload(const ServiceIdentity &identity)
    : QObject(QCoreApplication::instance()), d(std::make_unique<Private>())
{
    d->identity = identity;
    d->age.start();
}

QVOfferWallPreload::~QVOfferWallPreload()
{
    release();
}

QVOfferWallPreload *QVOfferWallPreload::start(const QString &pubId, const QString &corvelId, const QString &subId1)
{
    const ServiceIdentity identity{pubId, corvelId, subId1};
    auto &preloads = registry();
    for (qsizetype i = 0; i < preloads.size(); ++i) {
        QVOfferWallPreload *existing = preloads[i];
        if (!existing || existing->d->identity != identity)
            continue;
        if (!existing->d->failed() && !existing->d->age.hasExpired(g_maximumAge.count()))
            return existing;
        preloads.removeAt(i);
        existing->d->replaced = true;
        // A wall may still wait for its replies; it goes when nobody does.
        if (!existing->d->taken || !existing->d->pending())
            existing->deleteLater();
        break;
    }

    auto *preload = new QVOfferWallPreload(identity);
    if (!identity.isComplete()) {
        qCWarning(lcQuorvaDiagnostics).noquote() << kIncompleteWarning;
        preload->d->incomplete = true;
        preload->d->reportedFailed = true;
        return preload;
    }
    preloads.append(preload);
    preload->sendRequests();
    // The interface is built in slices from the event loop, never inside this call.
    preload->d->buildTimer.setInterval(0);
    preload->d->buildTimer.setSingleShot(true);
    connect(&preload->d->buildTimer, &QTimer::timeout, preload, &QVOfferWallPreload::buildNextStep);
    preload->d->buildTimer.start();
    return preload;
}

QVOfferWallPreload *QVOfferWallPreload::find(const ServiceIdentity &identity)
{
    for (const QPointer<QVOfferWallPreload> &preload : std::as_const(registry())) {
        if (preload && preload->d->identity == identity)
            return preload;
    }
    return nullptr;
}

void QVOfferWallPreload::sendRequests()
{
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    TransferRequest firstPage = ServiceRequests::offersRequest(api, d->identity, 0, QString(), QString(), false);
    d->firstPageAddress = firstPage.address;
    d->firstPageUserAgent = firstPage.userAgent;
    QPointer<QVOfferWallPreload> self(this);
    ServiceRequests::sendOffers(
        api, std::move(firstPage),
        [self](const QList<QVOffer> &offers, bool more) {
            if (!self)
                return;
            self->d->offersReply = Reply::Arrived;
            if (!self->d->replaced || self->d->taken) {
                self->d->offers = offers;
                self->d->moreOffers = more;
            }
            self->update();
        },
        [self] {
            if (!self)
                return;
            self->d->offersReply = Reply::Failed;
            self->update();
        });
    ServiceRequests::fetchProfile(
        api, d->identity,
        [self](const std::optional<QVProfile> &profile) {
            if (!self)
                return;
            self->d->profileReply = Reply::Arrived;
            self->d->profile = profile;
            self->update();
        },
        [self] {
            if (!self)
                return;
            self->d->profileReply = Reply::Failed;
            self->update();
        });
}

void QVOfferWallPreload::update()
{
    emit replyArrived(QPrivateSignal());
    const bool ready = isReady();
    const bool failed = isFailed();
    if (ready != d->reportedReady || failed != d->reportedFailed) {
        d->reportedReady = ready;
        d->reportedFailed = failed;
        emit stateChanged();
    }
    if (d->replaced && !d->pending())
        deleteLater();
}

bool QVOfferWallPreload::isReady() const
{
    return d->offersReply == Reply::Arrived && d->profileReply == Reply::Arrived;
}

bool QVOfferWallPreload::isFailed() const
{
    return d->failed();
}

bool QVOfferWallPreload::hasOffers() const
{
    return isReady() && !d->offers.isEmpty();
}

bool QVOfferWallPreload::take(const TransferRequest &firstPage)
{
    registry().removeAll(this);
    const bool usable = !d->taken && !d->failed() && !d->age.hasExpired(g_maximumAge.count())
        && firstPage.address == d->firstPageAddress && firstPage.userAgent == d->firstPageUserAgent;
    if (!usable) {
        release();
        return false;
    }
    d->taken = true;
    return true;
}

QQuickItem *QVOfferWallPreload::takeBuiltWall()
{
    d->buildTimer.stop();
    if (d->incubator)
        d->incubator->clear();
    d->incubator.reset();
    QQuickItem *wall = d->builtWall;
    d->builtWall = nullptr;
    return wall;
}

void QVOfferWallPreload::release()
{
    delete takeBuiltWall();
    d->offers.clear();
    d->profile.reset();
}

void QVOfferWallPreload::buildNextStep()
{
    // Each step is one slice of the GUI thread: the engine, then the interface files
    // compiled off the GUI thread, then the wall itself incubated in slices.
    switch (d->buildStep++) {
    case 0: {
        QQmlEngine *engine = QVComponentFactory::sharedEngine();
        if (!engine->incubationController()) {
            static auto *controller = new IdleIncubationController;
            engine->setIncubationController(controller);
        }
        d->buildTimer.start();
        break;
    }
    case 1: {
        QQmlEngine *engine = QVComponentFactory::sharedEngine();
        d->component = new QQmlComponent(engine, QVComponentFactory::urlFor(QVOffersViewController::identifier()),
                                         QQmlComponent::Asynchronous, this);
        auto incubate = [this] {
            if (d->component->isError()) {
                qCWarning(lcQuorvaDiagnostics).noquote() << kBuildWarning << d->component->errorString();
                return;
            }
            if (!d->component->isReady() || d->incubator || d->taken)
                return;
            d->incubator = std::make_unique<WallIncubator>([this](QQmlIncubator::Status status) {
                if (status != QQmlIncubator::Ready)
                    return;
                auto *wall = qobject_cast<QQuickItem *>(d->incubator->object());
                QQmlEngine::setObjectOwnership(wall, QQmlEngine::CppOwnership);
                d->builtWall = wall;
                d->buildTimer.start();
            });
            d->component->create(*d->incubator);
        };
        connect(d->component, &QQmlComponent::statusChanged, this, incubate);
        incubate();
        break;
    }
    case 2: {
        // One cell laid out with offer texts loads the fonts the first cells use.
        if (!d->builtWall)
            break;
        auto *cell = QVComponentFactory::create<QVOfferUICollectionViewCell>(
            QVComponentFactory::sharedEngine(), QVOfferUICollectionViewCell::identifier(), {},
            qmlContext(d->builtWall));
        if (cell) {
            cell->setOfferName(QStringLiteral("Offer"));
            cell->setOfferDescription(QStringLiteral("Complete the first level"));
            cell->setPayoutTitle(QStringLiteral("+1,500"));
            delete cell;
        }
        break;
    }
    default:
        break;
    }
}
