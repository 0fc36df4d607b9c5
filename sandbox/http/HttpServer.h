// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>

namespace quorva::http {

struct HttpRequest
{
    std::string method;
    std::string target;     // path and query as received
    std::string path;
    std::string query;      // the raw text after "?"
    std::map<std::string, std::string> headers; // names in lower case
    std::string body;
    bool tls = false;
    std::uint64_t connection = 0; // which connection it came on, counted from 1
    int sequence = 0;             // how many requests came before it on that connection

    std::string header(const std::string &lowerCaseName) const;
    // Query pairs split on "&" and "=", values percent-decoded; the first of a key wins.
    std::map<std::string, std::string> queryItems() const;
};

struct HttpResponse
{
    enum class Fault {
        None,
        DropConnection,     // hang up instead of answering
        TruncateBody,       // announce the full length, send half, hang up
        Stall,              // never answer; wait until the client hangs up
        StallMidBody,       // send the head and half the body, then wait
        EndlessBody,        // a chunked body that never ends
        EndlessHeaders,     // a status line followed by header lines without end
        CloseAfterAnswer,   // answer in full, keep-alive announced, then close as if idle
    };

    int status = 200;
    std::string contentType = "application/json";
    std::string body;
    std::map<std::string, std::string> headers;
    Fault fault = Fault::None;
    std::chrono::milliseconds delay{0};
    // When set, the answer waits until this returns true (asked on the server's thread).
    std::function<bool()> releaseWhen;

    static HttpResponse json(int status, std::string body);
};

using Handler = std::function<HttpResponse(const HttpRequest &)>;

struct TlsMaterial
{
    std::string certificateChainPem;
    std::string privateKeyPem;
};

// How long a peer may take over each step before its connection is closed, and how
// large a request may be. A slow or silent peer never holds a connection for good.
struct ServerLimits
{
    std::chrono::milliseconds handshake{10000};   // TLS detection and handshake
    std::chrono::milliseconds header{15000};      // the next request's head (also idle keep-alive)
    std::chrono::milliseconds body{30000};        // the request body
    std::chrono::milliseconds write{30000};       // sending the answer
    std::uint32_t requestsPerConnection = 100;    // the last one is answered with "close"
    std::uint32_t headerBytes = 16 * 1024;
    std::uint64_t bodyBytes = 1024 * 1024;
};

// HTTP/1.1 server that answers plain and TLS connections on the same port: the first
// bytes of a connection tell whether a TLS handshake starts. Handlers run on the
// server's one I/O thread, so they need no locks among themselves.
class HttpServer
{
public:
    HttpServer(Handler handler, TlsMaterial tls, ServerLimits limits = {});
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    // Binds and listens; port 0 picks a free one. Returns the bound port.
    std::uint16_t listen(const std::string &address, std::uint16_t port);
    // Serves on the calling thread until stop().
    void run();
    // Serves on a thread of its own.
    void start();
    void stop();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace quorva::http
