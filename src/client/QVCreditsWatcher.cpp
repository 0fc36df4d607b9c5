// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVCreditsWatcher.h"
#include "ServiceRequests.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <optional>

using quorva::detail::ServiceIdentity;
using quorva::detail::ServiceRequests;

namespace {
constexpr int kStatusOk = 200;
constexpr int kStatusNoContent = 204;
} // namespace

// Two identical rows are two credits, so the history is held as counts per row.
inline size_t qHash(const QVTransaction &t, size_t seed = 0)
{
    return qHashMulti(seed, t.offerName(), t.timestamp(), t.currencyAdjustment());
}

struct QVCreditsWatcher::Private
{
    ServiceIdentity identity;
    QTimer timer;
    bool active = false;
    bool inFlight = false;
    bool again = false;
    // Bumped when the identifiers change: a poll sent for the earlier ones says nothing
    // about the new user's history.
    int generation = 0;
    bool checkQueued = false;
    // The most times each row was ever seen: a row missing from one reply that comes
    // back later is not new.
    std::optional<QHash<QVTransaction, int>> seen;
};

QVCreditsWatcher::QVCreditsWatcher(const QString &pubId, const QString &corvelId, const QString &subId1,
                                   QObject *parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->identity = {pubId, corvelId, subId1};
    d->timer.setSingleShot(true);
    d->timer.setInterval(kDefaultInterval);
    connect(&d->timer, &QTimer::timeout, this, &QVCreditsWatcher::checkNow);
}

QVCreditsWatcher::QVCreditsWatcher(QObject *parent) : QVCreditsWatcher(QString(), QString(), QString(), parent) {}

QVCreditsWatcher::~QVCreditsWatcher() = default;

QString QVCreditsWatcher::pubId() const { return d->identity.pubId; }
QString QVCreditsWatcher::corvelId() const { return d->identity.corvelId; }
QString QVCreditsWatcher::subId1() const { return d->identity.subId1; }
void QVCreditsWatcher::setPubId(const QString &value) { identifierChanged(d->identity.pubId, value); }
void QVCreditsWatcher::setCorvelId(const QString &value) { identifierChanged(d->identity.corvelId, value); }
void QVCreditsWatcher::setSubId1(const QString &value) { identifierChanged(d->identity.subId1, value); }

void QVCreditsWatcher::identifierChanged(QString &identifier, const QString &value)
{
    if (identifier == value && identifier.isNull() == value.isNull())
        return;
    identifier = value;
    ++d->generation;
    const bool hadBaseline = d->seen.has_value();
    d->seen.reset();
    emit identifiersChanged();
    if (hadBaseline)
        emit hasBaselineChanged();
    // QML sets the three one after another: one poll follows once all are in.
    if (d->active && !std::exchange(d->checkQueued, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                d->checkQueued = false;
                if (d->active)
                    checkNow();
            },
            Qt::QueuedConnection);
    }
}

int QVCreditsWatcher::interval() const { return d->timer.interval(); }

void QVCreditsWatcher::setInterval(int milliseconds)
{
    milliseconds = qMax(milliseconds, kMinimumInterval);
    if (d->timer.interval() == milliseconds)
        return;
    // A waiting timer restarts with the new interval.
    d->timer.setInterval(milliseconds);
    emit intervalChanged();
}

bool QVCreditsWatcher::isActive() const { return d->active; }

void QVCreditsWatcher::setActive(bool active)
{
    if (d->active == active)
        return;
    d->active = active;
    emit activeChanged();
    if (active)
        checkNow();
    else
        d->timer.stop();
}

bool QVCreditsWatcher::hasBaseline() const { return d->seen.has_value(); }
bool QVCreditsWatcher::isChecking() const { return d->inFlight; }

void QVCreditsWatcher::checkNow()
{
    // Without all three identifiers there is no history to poll yet.
    if (!d->identity.isComplete())
        return;
    // One poll at a time: a slow service never has polls queueing behind it.
    if (d->inFlight) {
        d->again = true;
        return;
    }
    d->inFlight = true;
    d->timer.stop();
    emit checkingChanged();
    sendPoll();
}

void QVCreditsWatcher::sendPoll()
{
    QPointer<QVCreditsWatcher> self(this);
    const int generation = d->generation;
    ServiceRequests::fetchHistory(
        QuorvaRestAPI::sharedInstance(), d->identity,
        [self, generation](int status, const std::optional<QList<QVTransaction>> &list) {
            if (!self)
                return;
            if (generation != self->d->generation) {
                self->d->again = true; // polled for earlier identifiers: poll again
                self->pollEnded(std::nullopt);
                return;
            }
            // Only an answer of the service counts; an error status or a body without a
            // list says nothing about the history.
            std::optional<QList<QVTransaction>> history;
            if (status == kStatusOk && list)
                history = list;
            else if (status == kStatusNoContent)
                history = list.value_or(QList<QVTransaction>());
            self->pollEnded(history);
        },
        [self] {
            if (self)
                self->pollEnded(std::nullopt);
        });
}

void QVCreditsWatcher::pollEnded(const std::optional<QList<QVTransaction>> &history)
{
    QList<QVTransaction> credits;
    if (history) {
        const bool baseline = !d->seen;
        if (baseline)
            d->seen.emplace();
        QHash<QVTransaction, int> counted;
        for (const QVTransaction &transaction : *history) {
            const int count = ++counted[transaction];
            int &seen = (*d->seen)[transaction];
            if (count > seen) {
                seen = count;
                if (!baseline)
                    credits.append(transaction);
            }
        }
        if (baseline)
            emit hasBaselineChanged();
    }
    QPointer<QVCreditsWatcher> self(this);
    if (!credits.isEmpty())
        emit creditsReceived(credits);
    if (!self)
        return; // a receiver let the watcher go
    if (std::exchange(d->again, false)) {
        sendPoll();
        return;
    }
    d->inFlight = false;
    emit checkingChanged();
    if (d->active)
        d->timer.start();
}
