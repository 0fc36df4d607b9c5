// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "HttpTransport.h"

#include <QtCore/QString>

#include <curl/curl.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>
#include <openssl/x509_vfy.h>

#include <map>
#include <memory>
#include <mutex>
#include <thread>

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

namespace {
// Everything one exchange sets on its handle, whichever way it goes on the wire.
struct Exchange
{
    explicit Exchange(const TransferRequest &request) : request(request), address(request.address.toLatin1())
    {
        reception.limit = request.maximumReplySize;
    }

    const TransferRequest &request;
    QByteArray address;
    const QByteArray contentType = "Content-Type: " + request.contentType;
    Reception reception;
    // Declared before the handle so that it outlives the handle's clean-up.
    char reason[CURL_ERROR_SIZE] = {};
    std::unique_ptr<curl_slist, ListDeleter> headers;
    std::unique_ptr<CURL, HandleDeleter> handle{curl_easy_init()};

    // How often the request went on the wire, and whether the library's own resend after
    // a dead kept connection was stopped because it would have used another kept one.
    int sends = 0;
    bool resendOnFreshConnection = false;

    // Called before each send: a request goes out once, and a GET once more, on a fresh
    // connection, after a reused one lost it before any byte of the reply. The library
    // would try every kept connection in turn.
    static int beforeSending(void *user, char *, char *, int, int)
    {
        auto *exchange = static_cast<Exchange *>(user);
        long freshConnections = 0;
        curl_easy_getinfo(exchange->handle.get(), CURLINFO_NUM_CONNECTS, &freshConnections);
        const bool resend = exchange->sends == 1 && exchange->request.method != "POST";
        if (exchange->sends == 0 || (resend && freshConnections > 0)) {
            ++exchange->sends;
            return CURL_PREREQFUNC_OK;
        }
        exchange->resendOnFreshConnection = resend;
        return CURL_PREREQFUNC_ABORT;
    }

    bool configure()
    {
        CURL *curl = handle.get();
        if (!curl)
            return false;
        curl_easy_setopt(curl, CURLOPT_PREREQFUNCTION, &Exchange::beforeSending);
        curl_easy_setopt(curl, CURLOPT_PREREQDATA, this);
        curl_easy_setopt(curl, CURLOPT_URL, address.constData());
        curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
        // The address goes out as written: no dot-segment folding, no proxy from the
        // environment, no redirects followed.
        curl_easy_setopt(curl, CURLOPT_PATH_AS_IS, 1L);
        curl_easy_setopt(curl, CURLOPT_PROXY, "");
        curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, long(request.timeout.count()));
        curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, curl_off_t(request.maximumReplySize));
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &onBody);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, &reception);
        curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &onHeader);
        curl_easy_setopt(curl, CURLOPT_HEADERDATA, &reception);
        curl_easy_setopt(curl, CURLOPT_USERAGENT, request.userAgent.constData());
        curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, reason);
        // Verification stays on; the authorities come from the shared store, not from
        // files the library would read for this connection.
        curl_easy_setopt(curl, CURLOPT_SHARE, shared().share);
        curl_easy_setopt(curl, CURLOPT_CAINFO, nullptr);
        curl_easy_setopt(curl, CURLOPT_CAPATH, nullptr);
        // The kept connections' multi handle would otherwise keep the first store it saw
        // for a day and put it back over ours: authorities added later would not count.
        curl_easy_setopt(curl, CURLOPT_CA_CACHE_TIMEOUT, 0L);
        curl_easy_setopt(curl, CURLOPT_SSL_CTX_FUNCTION, &onTlsContext);
        curl_easy_setopt(curl, CURLOPT_SSL_CTX_DATA, trustStore().storeFor(request.extraAuthorities));

        // Only the headers that belong to the request: no Accept, no Expect handshake.
        curl_slist *list = curl_slist_append(nullptr, "Accept:");
        list = curl_slist_append(list, "Expect:");
        if (!request.contentType.isEmpty())
            list = curl_slist_append(list, contentType.constData());
        headers.reset(list);
        curl_easy_setopt(curl, CURLOPT_HTTPHEADER, list);

        if (request.method == "POST") {
            // A ticket goes on a fresh connection that is closed after it: a reused one
            // that turns out dead would make the library send it again.
            curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
            curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
            curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
            curl_easy_setopt(curl, CURLOPT_POST, 1L);
            curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(request.body.size()));
            curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.constData());
        } else {
            curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
            // GETs share the kept connections: HTTP/2 where the service offers it by
            // ALPN (the wall's requests then share one connection), HTTP/1.1 otherwise.
            curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_2TLS));
            curl_easy_setopt(curl, CURLOPT_PIPEWAIT, 1L);
            curl_easy_setopt(curl, CURLOPT_MAXAGE_CONN, long(KeptConnections::kIdleSeconds));
        }
        return true;
    }

    TransferResult result(CURLcode code) const
    {
        TransferResult result;
        long status = 0;
        curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &status);
        if (code == CURLE_OK && status > 0) {
            result.outcome = TransferResult::Outcome::Answered;
            result.status = int(status);
            result.body = reception.body;
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
};
} // namespace

TransferResult HttpTransport::perform(const TransferRequest &request)
{
    if (request.method != "POST")
        return KeptConnections::instance(request.address.startsWith(QLatin1StringView("https:"))).perform(request);
    Exchange exchange(request);
    if (!exchange.configure())
        return {};
    return exchange.result(curl_easy_perform(exchange.handle.get()));
}

KeptConnections &KeptConnections::instance(bool tls)
{
    // They live for the process: their threads serve every GET of every wall.
    static KeptConnections *secure = new KeptConnections(kMaximumConnections);
    static KeptConnections *plain = new KeptConnections(kMaximumPlainConnections);
    return tls ? *secure : *plain;
}

KeptConnections::KeptConnections(int maximumConnections)
{
    shared();
    m_multi = curl_multi_init();
    curl_multi_setopt(m_multi, CURLMOPT_PIPELINING, long(CURLPIPE_MULTIPLEX));
    curl_multi_setopt(m_multi, CURLMOPT_MAX_TOTAL_CONNECTIONS, long(maximumConnections));
    curl_multi_setopt(m_multi, CURLMOPT_MAX_HOST_CONNECTIONS, long(maximumConnections));
    curl_multi_setopt(m_multi, CURLMOPT_MAXCONNECTS, long(maximumConnections));
    std::thread([this] { serve(); }).detach();
}

TransferResult KeptConnections::perform(const TransferRequest &request)
{
    Exchange exchange(request);
    if (!exchange.configure())
        return {};
    // A connection that ended an exchange badly may be stuck: the next exchange opens a
    // fresh one instead of joining it (HTTP/1.1 closes such a connection by itself).
    if (m_freshNext.exchange(false))
        curl_easy_setopt(exchange.handle.get(), CURLOPT_FRESH_CONNECT, 1L);
    auto code = CURLcode(run(exchange.handle.get()));
    if (exchange.resendOnFreshConnection) {
        exchange.reception = Reception{};
        exchange.reception.limit = request.maximumReplySize;
        curl_easy_setopt(exchange.handle.get(), CURLOPT_FRESH_CONNECT, 1L);
        code = CURLcode(run(exchange.handle.get()));
    }
    const TransferResult result = exchange.result(code);
    if (!result.answered())
        m_freshNext = true;
    return result;
}

int KeptConnections::run(void *handle)
{
    Transfer transfer{handle};
    {
        std::lock_guard lock(m_mutex);
        m_incoming.push_back(&transfer);
    }
    curl_multi_wakeup(m_multi);
    std::unique_lock lock(m_mutex);
    m_finished.wait(lock, [&transfer] { return transfer.finished; });
    return transfer.code;
}

void KeptConnections::serve()
{
    std::map<void *, Transfer *> running;
    for (;;) {
        {
            std::lock_guard lock(m_mutex);
            for (Transfer *transfer : m_incoming) {
                running.emplace(transfer->handle, transfer);
                curl_multi_add_handle(m_multi, transfer->handle);
            }
            m_incoming.clear();
        }
        int active = 0;
        curl_multi_perform(m_multi, &active);
        int left = 0;
        while (CURLMsg *message = curl_multi_info_read(m_multi, &left)) {
            if (message->msg != CURLMSG_DONE)
                continue;
            CURL *handle = message->easy_handle;
            const CURLcode code = message->data.result;
            curl_multi_remove_handle(m_multi, handle);
            if (const auto it = running.find(handle); it != running.end()) {
                // The waiting worker owns the handle and the transfer; once it sees the
                // transfer finished it may free both.
                {
                    std::lock_guard lock(m_mutex);
                    it->second->code = int(code);
                    it->second->finished = true;
                }
                running.erase(it);
                m_finished.notify_all();
            }
        }
        curl_multi_poll(m_multi, nullptr, 0, 1000, nullptr);
    }
}

} // namespace quorva::detail
