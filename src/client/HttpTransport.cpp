// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "HttpTransport.h"

#include <QtCore/QString>

#include <curl/curl.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>
#include <openssl/x509_vfy.h>

#include <memory>
#include <mutex>

namespace quorva::detail {

namespace {
constexpr QLatin1StringView kNeverInAddress(" \"<>\\^`{|}#");
// Below the library's own limit on a reply's head, so an endless head is reported as
// too large rather than as a broken connection.
constexpr qint64 kMaximumHeadBytes = 256 * 1024;

// Process-wide state of the transport: the library's initialisation and what every
// connection shares (resumable TLS sessions), under locks the library asks for.
struct Shared
{
    CURLSH *share = nullptr;
    std::mutex locks[CURL_LOCK_DATA_LAST];
};

Shared &shared()
{
    static Shared *state = [] {
        curl_global_init(CURL_GLOBAL_DEFAULT);
        auto *s = new Shared;
        s->share = curl_share_init();
        curl_share_setopt(s->share, CURLSHOPT_LOCKFUNC, +[](CURL *, curl_lock_data data, curl_lock_access, void *user) {
            static_cast<Shared *>(user)->locks[data].lock();
        });
        curl_share_setopt(s->share, CURLSHOPT_UNLOCKFUNC, +[](CURL *, curl_lock_data data, void *user) {
            static_cast<Shared *>(user)->locks[data].unlock();
        });
        curl_share_setopt(s->share, CURLSHOPT_USERDATA, s);
        curl_share_setopt(s->share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
        return s;
    }();
    return *state;
}

// The certificate authorities a connection trusts: the system's, found on demand in its
// hashed certificate folder (not parsed from one large bundle for every connection), and
// the host's. Built once per set of host authorities and shared by every connection.
class TrustStore
{
public:
    X509_STORE *storeFor(const std::shared_ptr<const QList<QByteArray>> &extra)
    {
        std::lock_guard lock(m_mutex);
        if (m_store && m_extra == extra)
            return m_store;
        if (m_store)
            X509_STORE_free(m_store);
        m_extra = extra;
        m_store = X509_STORE_new();
        if (X509_LOOKUP *folder = X509_STORE_add_lookup(m_store, X509_LOOKUP_hash_dir()))
            X509_LOOKUP_add_dir(folder, X509_get_default_cert_dir(), X509_FILETYPE_PEM);
        for (const QByteArray &der : extra ? *extra : QList<QByteArray>()) {
            const auto *bytes = reinterpret_cast<const unsigned char *>(der.constData());
            if (X509 *certificate = d2i_X509(nullptr, &bytes, long(der.size()))) {
                X509_STORE_add_cert(m_store, certificate);
                X509_free(certificate);
            }
        }
        return m_store;
    }

private:
    std::mutex m_mutex;
    std::shared_ptr<const QList<QByteArray>> m_extra;
    X509_STORE *m_store = nullptr;
};

TrustStore &trustStore()
{
    static TrustStore *store = new TrustStore;
    return *store;
}

struct Reception
{
    QByteArray body;
    qint64 received = 0;    // head and body together
    qint64 headReceived = 0;
    qint64 limit = 0;
    qint64 exceededLimit = 0;

    // False once the reply has grown past a cap: the transfer stops there.
    bool take(qint64 bytes, bool head)
    {
        received += bytes;
        headReceived += head ? bytes : 0;
        if (received > limit)
            exceededLimit = limit;
        else if (headReceived > qMin(limit, kMaximumHeadBytes))
            exceededLimit = qMin(limit, kMaximumHeadBytes);
        return exceededLimit == 0;
    }
};

size_t onBody(char *data, size_t size, size_t count, void *user)
{
    auto *reception = static_cast<Reception *>(user);
    const qint64 bytes = qint64(size * count);
    if (!reception->take(bytes, false))
        return 0;
    reception->body.append(data, bytes);
    return size * count;
}

size_t onHeader(char *, size_t size, size_t count, void *user)
{
    auto *reception = static_cast<Reception *>(user);
    return reception->take(qint64(size * count), true) ? size * count : 0;
}

// Gives the connection the shared store of trusted authorities.
CURLcode onTlsContext(CURL *, void *context, void *user)
{
    SSL_CTX_set1_cert_store(static_cast<SSL_CTX *>(context), static_cast<X509_STORE *>(user));
    return CURLE_OK;
}

struct HandleDeleter
{
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
};
struct ListDeleter
{
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}
} // namespace

bool HttpTransport::isSendableAddress(const QString &address)
{
    if (address.isEmpty())
        return false;
    for (qsizetype i = 0; i < address.size(); ++i) {
        const QChar c = address.at(i);
        if (c.unicode() <= 0x20 || c.unicode() >= 0x7f || kNeverInAddress.contains(c))
            return false;
        if (c == u'%' && (i + 2 >= address.size() || !isHexDigit(address.at(i + 1)) || !isHexDigit(address.at(i + 2))))
            return false;
    }
    return true;
}

TransferResult HttpTransport::perform(const TransferRequest &request)
{
    Shared &state = shared();
    TransferResult result;
    // Declared before the handle so that it outlives the handle's clean-up.
    char reason[CURL_ERROR_SIZE] = {};
    std::unique_ptr<CURL, HandleDeleter> handle(curl_easy_init());
    if (!handle)
        return result;
    CURL *curl = handle.get();
    Reception reception;
    reception.limit = request.maximumReplySize;

    const QByteArray address = request.address.toLatin1();
    curl_easy_setopt(curl, CURLOPT_URL, address.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    // The address goes out as written: no dot-segment folding, no proxy from the
    // environment, no redirects followed.
    curl_easy_setopt(curl, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
    // A reused connection that turns out dead makes the library send the request again
    // on a fresh one; with a fresh connection every time, one call is one request.
    curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, long(request.timeout.count()));
    curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, curl_off_t(request.maximumReplySize));
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &onBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &reception);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &onHeader);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &reception);
    curl_easy_setopt(curl, CURLOPT_USERAGENT, request.userAgent.constData());
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, reason);
    // Verification stays on; the authorities come from the shared store, not from files
    // the library would read for this connection.
    curl_easy_setopt(curl, CURLOPT_SHARE, state.share);
    curl_easy_setopt(curl, CURLOPT_CAINFO, nullptr);
    curl_easy_setopt(curl, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(curl, CURLOPT_SSL_CTX_FUNCTION, &onTlsContext);
    curl_easy_setopt(curl, CURLOPT_SSL_CTX_DATA, trustStore().storeFor(request.extraAuthorities));

    // Only the headers that belong to the request: no Accept, no Expect handshake.
    curl_slist *headers = curl_slist_append(nullptr, "Accept:");
    headers = curl_slist_append(headers, "Expect:");
    const QByteArray contentType = "Content-Type: " + request.contentType;
    if (!request.contentType.isEmpty())
        headers = curl_slist_append(headers, contentType.constData());
    std::unique_ptr<curl_slist, ListDeleter> headerList(headers);
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers);

    if (request.method == "POST") {
        curl_easy_setopt(curl, CURLOPT_POST, 1L);
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(request.body.size()));
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.constData());
    } else {
        curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
    }

    const CURLcode code = curl_easy_perform(curl);
    long status = 0;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
    if (code == CURLE_OK && status > 0) {
        result.outcome = TransferResult::Outcome::Answered;
        result.status = int(status);
        result.body = std::move(reception.body);
    } else if (code == CURLE_OPERATION_TIMEDOUT) {
        result.outcome = TransferResult::Outcome::TimedOut;
    } else if (reception.exceededLimit > 0 || code == CURLE_FILESIZE_EXCEEDED) {
        result.outcome = TransferResult::Outcome::TooLarge;
        result.exceededLimit = reception.exceededLimit > 0 ? reception.exceededLimit : request.maximumReplySize;
    } else if (code == CURLE_PEER_FAILED_VERIFICATION) {
        result.setupProblem = "the service's certificate is not trusted (" + QByteArray(reason)
            + "): add its certificate authority (QuorvaRestAPI::addCaCertificates, or caCertificatesFile in QML)";
    } else if (code == CURLE_COULDNT_RESOLVE_HOST || code == CURLE_URL_MALFORMAT) {
        result.setupProblem = "the service address does not resolve: it takes \"host\" or \"host:port\"";
    } else if (code == CURLE_COULDNT_CONNECT) {
        result.setupProblem = "the service refused the connection: nothing listens at that host and port";
    }
    return result;
}

} // namespace quorva::detail
