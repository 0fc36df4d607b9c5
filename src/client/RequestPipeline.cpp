// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "RequestPipeline.h"
#include "QuorvaLog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThreadPool>

namespace quorva::detail {

void postToGuiThread(std::function<void()> fn)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app)
        return; // the process is shutting down; nobody is left to call back
    QMetaObject::invokeMethod(app, std::move(fn), Qt::QueuedConnection);
}

void RequestPipeline::send(QThreadPool *pool, TransferRequest request, ResponseHandler onResponse,
                           FailureHandler onFailure)
{
    pool->start([request = std::move(request), onResponse = std::move(onResponse),
                 onFailure = std::move(onFailure)]() mutable {
        if (request.completeAddress)
            request.address = request.completeAddress();
        // Diagnostics name the request, never the values it carries.
        if (!HttpTransport::isSendableAddress(request.address)) {
            qCWarning(lcQuorvaDiagnostics).noquote()
                << request.name << "request not sent: its address holds a character that cannot stand unescaped";
            postToGuiThread(std::move(onFailure));
            return;
        }
        const TransferResult result = HttpTransport::perform(request);
        if (result.answered()) {
            onResponse(result.status, result.body);
            return;
        }
        if (result.outcome == TransferResult::Outcome::TimedOut)
            qCWarning(lcQuorvaDiagnostics).noquote()
                << request.name << "request timed out after" << request.timeout.count() << "ms";
        else if (result.outcome == TransferResult::Outcome::TooLarge)
            qCWarning(lcQuorvaDiagnostics).noquote()
                << request.name << "request stopped: the reply exceeds" << result.exceededLimit << "bytes";
        else if (!result.setupProblem.isEmpty())
            qCWarning(lcQuorvaDiagnostics).noquote() << request.name << "request failed:" << result.setupProblem;
        postToGuiThread(std::move(onFailure));
    });
}

} // namespace quorva::detail
