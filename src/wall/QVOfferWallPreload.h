// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQuickItem;
class QVOffersViewController;
namespace quorva::detail { struct ServiceIdentity; struct TransferRequest; }

/// A wall's first screen made ahead: its profile and first page of offers requested, and
/// its interface built in the GUI thread's idle time. A wall created for the same
/// identifiers takes it and shows its first offers without a round trip. Owned by the
/// library: the pointer stays valid until the next preload for the same identifiers
/// replaces it, so keep it in a QPointer.
class QUORVAMEDIA_EXPORT QVOfferWallPreload : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("QVService.preload() makes it")
    /// Both replies have arrived.
    Q_PROPERTY(bool ready READ isReady NOTIFY stateChanged FINAL)
    /// Either request failed, or the identifiers were incomplete.
    Q_PROPERTY(bool failed READ isFailed NOTIFY stateChanged FINAL)
    /// Ready, with at least one offer on the first page.
    Q_PROPERTY(bool hasOffers READ hasOffers NOTIFY stateChanged FINAL)

public:
    /// Preloads are destroyed by the library; a host never deletes one.
    ~QVOfferWallPreload() override;

    /// Both replies have arrived.
    bool isReady() const;
    /// Either request failed, or the identifiers were incomplete.
    bool isFailed() const;
    /// Ready, with at least one offer on the first page.
    bool hasOffers() const;

    /// The library's own state of the preload.
    struct Private;

signals:
    /// Emitted when #ready, #failed or #hasOffers change.
    void stateChanged();
    /// One of the two replies arrived or failed (the wall that took it listens).
    void replyArrived(QPrivateSignal);

private:
    friend class QVOffersViewController;

    explicit QVOfferWallPreload(const quorva::detail::ServiceIdentity &identity);
    Q_DECL_HIDDEN static QVOfferWallPreload *start(const QString &pubId, const QString &corvelId, const QString &subId1);
    /// The preload a new wall with these identifiers may take, if any.
    Q_DECL_HIDDEN static QVOfferWallPreload *find(const quorva::detail::ServiceIdentity &identity);
    /// Marks the preload taken when it may be: not failed, fresh and for the same request
    /// on the wire. Otherwise it is dropped. Either way it is out of the registry.
    Q_DECL_HIDDEN bool take(const quorva::detail::TransferRequest &firstPage);
    /// The wall built ahead, handed over once.
    Q_DECL_HIDDEN QQuickItem *takeBuiltWall();
    const Private &state() const { return *d; }
    Q_DECL_HIDDEN void sendRequests();
    Q_DECL_HIDDEN void buildNextStep();
    Q_DECL_HIDDEN void update();
    Q_DECL_HIDDEN void release();

    std::unique_ptr<Private> d;
};
