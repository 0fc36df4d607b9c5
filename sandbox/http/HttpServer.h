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

    std::string header(const std::string &lowerCaseName) const;
    // Query pairs split on "&" and "=", values percent-decoded; the first of a key wins.
    std::map<std::string, std::string> queryItems() const;
};

struct HttpResponse
{
    enum class Fault { None, DropConnection, TruncateBody };

    int status = 200;
    std::string contentType = "application/json";
    std::string body;
    std::map<std::string, std::string> headers;
    Fault fault = Fault::None;
    std::chrono::milliseconds delay{0};

    static HttpResponse json(int status, std::string body);
};

using Handler = std::function<HttpResponse(const HttpRequest &)>;

struct TlsMaterial
{
    std::string certificateChainPem;
    std::string privateKeyPem;
};

// HTTP/1.1 server that answers plain and TLS connections on the same port: the first
// bytes of a connection tell whether a TLS handshake starts. Handlers run on the
// server's one I/O thread, so they need no locks among themselves.
class HttpServer
{
public:
    HttpServer(Handler handler, TlsMaterial tls);
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
