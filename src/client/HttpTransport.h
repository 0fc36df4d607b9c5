// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>
#include <functional>
#include <memory>

namespace quorva::detail {

// One HTTP exchange, ended by the reply, a transport failure, the time-out or the size
// cap. A POST goes on a fresh connection of its own and is never sent twice. A GET goes
// on a kept connection (HTTP/2 where the service offers it); one that a reused connection
// loses before any byte of its reply is sent once more on a fresh connection (HTTP's rule
// for idempotent requests).
struct TransferRequest
{
    const char *name = "";      // the request's name for diagnostics ("offers", ...)
    QByteArray method;          // "GET" or "POST"
    QString address;            // sent exactly as written; see isSendableAddress()
    // For a value whose reading blocks (the host's advertising identifier): runs on the
    // worker pool and gives the address to send. `address` then holds the request without
    // that value, which is what two requests are compared by.
    std::function<QString()> completeAddress;
    QByteArray userAgent;
    QByteArray contentType;     // none when empty
    QByteArray body;            // only sent with POST
    std::chrono::milliseconds timeout{60000};
    qint64 maximumReplySize = 4 * 1024 * 1024;
    // Certificate authorities trusted on top of the system's, DER encoded.
    std::shared_ptr<const QList<QByteArray>> extraAuthorities;
};

struct TransferResult
{
    enum class Outcome { Answered, Failed, TimedOut, TooLarge };
    Outcome outcome = Outcome::Failed;
    int status = 0;
    QByteArray body;
    qint64 exceededLimit = 0;   // with TooLarge: the cap the reply went past
    // With Failed, when the host's set-up is the likely cause (an untrusted certificate,
    // an address that does not resolve, a refused connection): what to tell the developer.
    QByteArray setupProblem;

    bool answered() const { return outcome == Outcome::Answered; }
};

// The kept connections every GET shares: one thread drives them all, multiplexing on an
// HTTP/2 connection, queueing for the bounded HTTP/1.1 ones. An idle connection is dropped
// after kIdleSeconds, before a carrier's NAT forgets it; one the peer closed while idle is
// noticed before it is used and costs no failure. Plain http (the profile) has a pool of
// its own: in one pool, TLS requests would wait to learn whether the plain connection to
// the same host and port can carry them too.
class KeptConnections
{
public:
    static constexpr int kMaximumConnections = 4;      // TLS
    static constexpr int kMaximumPlainConnections = 1;
    static constexpr int kIdleSeconds = 25;

    // The pool for TLS or for plain http.
    static KeptConnections &instance(bool tls);
    // Blocks the calling (worker) thread until the exchange has ended.
    TransferResult perform(const TransferRequest &request);

private:
    struct Transfer
    {
        void *handle;
        int code = 0;
        bool finished = false; // under m_mutex
    };

    explicit KeptConnections(int maximumConnections);
    // Hands a configured handle to the thread and waits for its outcome.
    int run(void *handle);
    void serve();

    void *m_multi = nullptr;
    std::mutex m_mutex;
    std::condition_variable m_finished; // a transfer has finished
    std::vector<Transfer *> m_incoming;
    std::atomic<bool> m_freshNext{false};
};

class HttpTransport
{
public:
    // Blocks the calling (worker) thread until the exchange has ended.
    static TransferResult perform(const TransferRequest &request);

    // True when every character can stand in an address as written: printable ASCII,
    // none of the characters an address never holds, and "%" only before two hex digits.
    static bool isSendableAddress(const QString &address);
};

} // namespace quorva::detail
