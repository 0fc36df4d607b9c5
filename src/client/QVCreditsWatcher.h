// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVTransaction.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

/// Tells the app when the user has been credited, by polling the user's history. The
/// first answered poll is the baseline: what is already credited then is not reported.
/// Crediting the balance is the service's job; this is for telling the user.
///
/// QML hosts declare it as QVCreditsWatcher { pubId: ...; corvelId: ...; subId1: ...;
/// active: true } and hand it to a wall's \c creditsWatcher property.
class QUORVAMEDIA_EXPORT QVCreditsWatcher : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The publisher's identifier of the history polled. Changing an identifier starts
    /// over: the next answered poll is a new baseline.
    Q_PROPERTY(QString pubId READ pubId WRITE setPubId NOTIFY identifiersChanged FINAL)
    /// The wall's identifier of the history polled; see #pubId.
    Q_PROPERTY(QString corvelId READ corvelId WRITE setCorvelId NOTIFY identifiersChanged FINAL)
    /// The user whose history is polled; see #pubId.
    Q_PROPERTY(QString subId1 READ subId1 WRITE setSubId1 NOTIFY identifiersChanged FINAL)
    /// Milliseconds from the end of one poll to the start of the next; at least
    /// #kMinimumInterval, #kDefaultInterval unless set.
    Q_PROPERTY(int interval READ interval WRITE setInterval NOTIFY intervalChanged FINAL)
    /// Polls once at once when switched on, then every interval; off until set.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    /// True once a poll has been answered: later credits are reported.
    Q_PROPERTY(bool hasBaseline READ hasBaseline NOTIFY hasBaselineChanged FINAL)
    /// True while a poll is under way.
    Q_PROPERTY(bool checking READ isChecking NOTIFY checkingChanged FINAL)

public:
    /// The interval until one is set, in milliseconds.
    static constexpr int kDefaultInterval = 60000;
    /// The shortest interval, in milliseconds; a shorter one is raised to it.
    static constexpr int kMinimumInterval = 1000;

    /// A watcher of the user's history for the identifiers, inactive until setActive().
    /// Use it on the GUI thread.
    QVCreditsWatcher(const QString &pubId, const QString &corvelId, const QString &subId1,
                     QObject *parent = nullptr);
    /// A watcher without identifiers, as QML creates it: it polls once all three are set.
    explicit QVCreditsWatcher(QObject *parent = nullptr);
    /// Stops polling; a poll under way ends without a signal.
    ~QVCreditsWatcher() override;

    /// Milliseconds from the end of one poll to the start of the next; at least a second.
    int interval() const;
    /// Sets the interval; see #interval.
    void setInterval(int milliseconds);
    /// Polls once at once when switched on, then every interval; off until the host sets it.
    bool isActive() const;
    /// Switches polling on or off; see #active.
    void setActive(bool active);
    /// See #hasBaseline.
    bool hasBaseline() const;
    /// A poll is under way.
    bool isChecking() const;

    ///@{
    /// The identifiers, as the properties of the same names describe them.
    QString pubId() const;
    void setPubId(const QString &value);
    QString corvelId() const;
    void setCorvelId(const QString &value);
    QString subId1() const;
    void setSubId1(const QString &value);
    ///@}

public slots:
    /// Polls now; while a poll is under way, one more follows when it ends.
    void checkNow();

signals:
    /// The transactions that are new since the last answered poll, in the reply's order.
    void creditsReceived(const QList<QVTransaction> &transactions);
    ///@{
    /// Emitted when the property of the same name changes.
    void intervalChanged();
    void activeChanged();
    void hasBaselineChanged();
    void checkingChanged();
    void identifiersChanged();
    ///@}

private:
    Q_DECL_HIDDEN void sendPoll();
    Q_DECL_HIDDEN void pollEnded(const std::optional<QList<QVTransaction>> &history);
    Q_DECL_HIDDEN void identifierChanged(QString &identifier, const QString &value);

    struct Private;
    std::unique_ptr<Private> d;
};
