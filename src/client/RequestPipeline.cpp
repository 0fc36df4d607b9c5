#include "RequestPipeline.h"
#include "QuorvaLog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRunnable>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>

namespace quorva::detail {

void postToGuiThread(std::function<void()> fn)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app)
        return; // the process is shutting down; nobody is left to call back
    QMetaObject::invokeMethod(app, std::move(fn), Qt::QueuedConnection);
}

bool RequestPipeline::isHttpStatusError(int networkError)
{
    return (networkError >= QNetworkReply::ContentAccessDenied
            && networkError <= QNetworkReply::UnknownContentError)
        || (networkError >= QNetworkReply::InternalServerError
            && networkError <= QNetworkReply::UnknownServerError);
}

void RequestPipeline::send(QNetworkAccessManager *network, QThreadPool *pool,
                           const QNetworkRequest &request, const QByteArray &verb,
                           const QByteArray &body, ResponseHandler onResponse,
                           FailureHandler onFailure)
{
    if (!request.url().isValid()) {
        qCWarning(lcQuorvaDiagnostics).noquote()
            << "request address is not valid:" << request.url().errorString();
        postToGuiThread(std::move(onFailure));
        return;
    }

    QNetworkReply *reply = network->sendCustomRequest(request, verb, body);
    QObject::connect(reply, &QNetworkReply::finished, reply,
                     [reply, pool, onResponse = std::move(onResponse),
                      onFailure = std::move(onFailure)]() mutable {
        reply->deleteLater();
        const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        const int error = reply->error();
        const bool answered = status.isValid()
            && (error == QNetworkReply::NoError || isHttpStatusError(error));
        if (!answered) {
            // Already on the GUI thread, but the callback still goes through the event
            // loop so that every callback takes the same path.
            postToGuiThread(std::move(onFailure));
            return;
        }
        const int code = status.toInt();
        const QByteArray data = reply->readAll();
        pool->start([onResponse = std::move(onResponse), code, data] { onResponse(code, data); });
    });
}

} // namespace quorva::detail
