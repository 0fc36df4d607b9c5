// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "HttpTransport.h"

#include <QtCore/QByteArray>

#include <functional>
#include <memory>

class QThreadPool;

namespace quorva::detail {

// Runs fn on the GUI thread from the event loop, never synchronously.
void postToGuiThread(std::function<void()> fn);

// Sends one request from the worker pool and routes its outcome: a reply that carries an
// HTTP status is a response, whatever the status; a transport failure, the time-out,
// the size cap or an address that cannot be sent is a failure. Exactly one of the two
// handlers runs, once. A ticket goes on the wire once; a GET once more at most, after a
// kept connection lost it (see HttpTransport).
class QUORVAMEDIA_EXPORT RequestPipeline
{
public:
    // onResponse runs on the worker pool with the status and the body;
    // onFailure runs on the GUI thread.
    using ResponseHandler = std::function<void(int status, const QByteArray &body)>;
    using FailureHandler = std::function<void()>;

    static void send(QThreadPool *pool, TransferRequest request, ResponseHandler onResponse,
                     FailureHandler onFailure);

    // Parses on the pool, then delivers the parsed value and the status on the GUI thread.
    template <typename Parsed>
    static void send(QThreadPool *pool, TransferRequest request,
                     std::function<Parsed(const QByteArray &)> parse,
                     std::function<void(int status, const Parsed &)> deliver,
                     FailureHandler onFailure)
    {
        send(pool, std::move(request),
             [parse = std::move(parse), deliver = std::move(deliver)](int status, const QByteArray &data) {
                 auto parsed = std::make_shared<Parsed>(parse(data));
                 postToGuiThread([deliver, status, parsed] { deliver(status, *parsed); });
             },
             std::move(onFailure));
    }
};

} // namespace quorva::detail
