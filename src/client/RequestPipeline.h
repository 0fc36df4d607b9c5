#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtNetwork/QNetworkRequest>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QThreadPool;

namespace quorva::detail {

// Runs fn on the GUI thread from the event loop, never synchronously.
QUORVAMEDIA_EXPORT void postToGuiThread(std::function<void()> fn);

// Sends one request and routes its outcome. A reply that carries an HTTP status is a
// response, whatever the status; only a transport failure (no connection, dropped
// connection, TLS failure, invalid address) takes the failure path.
class QUORVAMEDIA_EXPORT RequestPipeline
{
public:
    // onResponse runs on the worker pool with the status and the body;
    // onFailure runs on the GUI thread.
    using ResponseHandler = std::function<void(int status, const QByteArray &body)>;
    using FailureHandler = std::function<void()>;

    static void send(QNetworkAccessManager *network, QThreadPool *pool, const QNetworkRequest &request,
                     const QByteArray &verb, const QByteArray &body, ResponseHandler onResponse,
                     FailureHandler onFailure);

    // Parses on the pool, then delivers the parsed value and the status on the GUI thread.
    template <typename Parsed>
    static void send(QNetworkAccessManager *network, QThreadPool *pool, const QNetworkRequest &request,
                     const QByteArray &verb, const QByteArray &body,
                     std::function<Parsed(const QByteArray &)> parse,
                     std::function<void(int status, const Parsed &)> deliver,
                     FailureHandler onFailure)
    {
        send(network, pool, request, verb, body,
             [parse = std::move(parse), deliver = std::move(deliver)](int status, const QByteArray &data) {
                 auto parsed = std::make_shared<Parsed>(parse(data));
                 postToGuiThread([deliver, status, parsed] { deliver(status, *parsed); });
             },
             std::move(onFailure));
    }

    // True when the reply error only mirrors an HTTP error status.
    static bool isHttpStatusError(int networkError);
};

} // namespace quorva::detail
