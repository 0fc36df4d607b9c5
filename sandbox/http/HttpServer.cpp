#include "HttpServer.h"

#include <utility> // boost 1.74 awaitable.hpp needs std::exchange

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/core/detect_ssl.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/ssl.hpp>

#include <algorithm>
#include <cctype>
#include <sstream>

namespace quorva::http {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace bhttp = boost::beast::http;
using asio::ip::tcp;
using asio::use_awaitable;

std::string HttpRequest::header(const std::string &lowerCaseName) const
{
    const auto it = headers.find(lowerCaseName);
    return it == headers.end() ? std::string() : it->second;
}

namespace {
int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

std::string percentDecoded(const std::string &text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            const int hi = hexValue(text[i + 1]);
            const int lo = hexValue(text[i + 2]);
            if (hi >= 0 && lo >= 0) {
                out += static_cast<char>(hi * 16 + lo);
                i += 2;
                continue;
            }
        }
        // "+" stays a plus: clients send values unescaped.
        out += text[i];
    }
    return out;
}
} // namespace

std::map<std::string, std::string> HttpRequest::queryItems() const
{
    std::map<std::string, std::string> items;
    std::size_t start = 0;
    while (start <= query.size() && !query.empty()) {
        const std::size_t end = std::min(query.find('&', start), query.size());
        const std::string pair = query.substr(start, end - start);
        if (!pair.empty()) {
            const std::size_t eq = pair.find('=');
            const std::string key = percentDecoded(pair.substr(0, eq));
            const std::string value = eq == std::string::npos ? std::string() : percentDecoded(pair.substr(eq + 1));
            items.emplace(key, value);
        }
        start = end + 1;
    }
    return items;
}

HttpResponse HttpResponse::json(int status, std::string body)
{
    HttpResponse response;
    response.status = status;
    response.body = std::move(body);
    return response;
}

struct HttpServer::Impl
{
    Handler handler;
    asio::io_context io{1};
    asio::ssl::context tls{asio::ssl::context::tls_server};
    tcp::acceptor acceptor{io};
    std::thread thread;

    asio::awaitable<void> acceptLoop()
    {
        for (;;) {
            tcp::socket socket = co_await acceptor.async_accept(use_awaitable);
            asio::co_spawn(io, session(std::move(socket)), asio::detached);
        }
    }

    asio::awaitable<void> session(tcp::socket socket)
    {
        try {
            beast::tcp_stream stream(std::move(socket));
            beast::flat_buffer buffer;
            const bool isTls = co_await beast::async_detect_ssl(stream, buffer, use_awaitable);
            if (isTls) {
                beast::ssl_stream<beast::tcp_stream> secure(std::move(stream), tls);
                const std::size_t used = co_await secure.async_handshake(
                    asio::ssl::stream_base::server, buffer.data(), use_awaitable);
                buffer.consume(used);
                co_await serve(secure, buffer, true);
            } else {
                co_await serve(stream, buffer, false);
            }
        } catch (const std::exception &) {
            // A peer that goes away or speaks nonsense ends its own session only.
        }
    }

    template <typename Stream>
    asio::awaitable<void> serve(Stream &stream, beast::flat_buffer &buffer, bool isTls)
    {
        for (;;) {
            bhttp::request<bhttp::string_body> message;
            co_await bhttp::async_read(stream, buffer, message, use_awaitable);

            HttpRequest request;
            request.method = std::string(message.method_string());
            request.target = std::string(message.target());
            const std::size_t q = request.target.find('?');
            request.path = request.target.substr(0, q);
            request.query = q == std::string::npos ? std::string() : request.target.substr(q + 1);
            for (const auto &field : message) {
                std::string name(field.name_string());
                std::transform(name.begin(), name.end(), name.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
                request.headers[name] = std::string(field.value());
            }
            request.body = message.body();
            request.tls = isTls;

            HttpResponse reply = handler(request);
            if (reply.delay.count() > 0) {
                asio::steady_timer timer(io, reply.delay);
                co_await timer.async_wait(use_awaitable);
            }
            if (reply.fault == HttpResponse::Fault::DropConnection) {
                beast::get_lowest_layer(stream).socket().close();
                co_return;
            }

            bhttp::response<bhttp::string_body> response{static_cast<bhttp::status>(reply.status),
                                                         message.version()};
            response.set(bhttp::field::server, "quorva-sandbox");
            if (reply.status != 204 && reply.status != 304)
                response.set(bhttp::field::content_type, reply.contentType);
            for (const auto &[name, value] : reply.headers)
                response.set(name, value);
            response.body() = std::move(reply.body);
            response.keep_alive(message.keep_alive());
            response.prepare_payload();

            if (reply.fault == HttpResponse::Fault::TruncateBody) {
                // Announce the full length, send half of it, then hang up.
                std::ostringstream wire;
                wire << response;
                const std::string bytes = wire.str();
                const std::size_t headerEnd = bytes.find("\r\n\r\n") + 4;
                const std::size_t cut = headerEnd + (bytes.size() - headerEnd) / 2;
                co_await asio::async_write(stream, asio::buffer(bytes.data(), cut), use_awaitable);
                beast::get_lowest_layer(stream).socket().close();
                co_return;
            }
            const bool keepAlive = response.keep_alive();
            co_await bhttp::async_write(stream, response, use_awaitable);
            if (!keepAlive) {
                beast::get_lowest_layer(stream).socket().shutdown(tcp::socket::shutdown_send);
                co_return;
            }
        }
    }
};

HttpServer::HttpServer(Handler handler, TlsMaterial material) : d(std::make_unique<Impl>())
{
    d->handler = std::move(handler);
    d->tls.set_options(asio::ssl::context::default_workarounds | asio::ssl::context::no_sslv2
                       | asio::ssl::context::no_sslv3 | asio::ssl::context::no_tlsv1
                       | asio::ssl::context::no_tlsv1_1);
    d->tls.use_certificate_chain(asio::buffer(material.certificateChainPem));
    d->tls.use_private_key(asio::buffer(material.privateKeyPem), asio::ssl::context::pem);
}

HttpServer::~HttpServer()
{
    stop();
}

std::uint16_t HttpServer::listen(const std::string &address, std::uint16_t port)
{
    const tcp::endpoint endpoint(asio::ip::make_address(address), port);
    d->acceptor.open(endpoint.protocol());
    d->acceptor.set_option(asio::socket_base::reuse_address(true));
    d->acceptor.bind(endpoint);
    d->acceptor.listen();
    asio::co_spawn(d->io, d->acceptLoop(), asio::detached);
    return d->acceptor.local_endpoint().port();
}

void HttpServer::run()
{
    d->io.run();
}

void HttpServer::start()
{
    d->thread = std::thread([this] { d->io.run(); });
}

void HttpServer::stop()
{
    d->io.stop();
    if (d->thread.joinable())
        d->thread.join();
}

} // namespace quorva::http
