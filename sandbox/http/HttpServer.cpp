// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "HttpServer.h"
#include <fcntl.h>

#include <utility> // boost 1.74 awaitable.hpp needs std::exchange

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
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

namespace {
// The peer sent something that is not an acceptable request: the status to answer with,
// or 0 when there is nobody left to answer (the peer went away or took too long).
int statusForReadError(const beast::error_code &ec, bool requestLineRead)
{
    if (ec == bhttp::error::header_limit)
        return requestLineRead ? 431 : 414;
    if (ec == bhttp::error::body_limit)
        return 413;
    const bool parseError = ec.category() == beast::error_code(bhttp::error::bad_method).category()
        && ec != bhttp::error::end_of_stream && ec != bhttp::error::partial_message
        && ec != bhttp::error::short_read && ec != bhttp::error::need_more;
    return parseError ? 400 : 0;
}

const char *reasonFor(int status)
{
    switch (status) {
    case 413: return "the request body is too large";
    case 414: return "the request target is too long";
    case 431: return "the request header is too large";
    default: return "the request is malformed";
    }
}

std::string chunk(std::size_t size)
{
    std::ostringstream out;
    out << std::hex << size << "\r\n" << std::string(size, 'x') << "\r\n";
    return out.str();
}
} // namespace

struct HttpServer::Impl
{
    Handler handler;
    ServerLimits limits;
    asio::io_context io{1};
    asio::ssl::context tls{asio::ssl::context::tls_server};
    tcp::acceptor acceptor{io};
    std::thread thread;
    std::uint64_t connections = 0; // only the I/O thread counts

    asio::awaitable<void> acceptLoop()
    {
        for (;;) {
            beast::error_code ec;
            tcp::socket socket = co_await acceptor.async_accept(asio::redirect_error(use_awaitable, ec));
            if (!ec) {
                // Answers go out as soon as they are written, not after the peer's
                // delayed acknowledgement of the previous piece.
                socket.set_option(tcp::no_delay(true), ec);
                // Not handed to programs started later (a proxy, a probe): one that held a
                // copy would keep open every connection this server closes.
                ::fcntl(socket.native_handle(), F_SETFD, FD_CLOEXEC);
                asio::co_spawn(io, session(std::move(socket)), asio::detached);
                continue;
            }
            if (ec == asio::error::operation_aborted || !acceptor.is_open())
                co_return;
            // Out of file handles and the like: wait for connections to end, then go on.
            asio::steady_timer pause(io, std::chrono::milliseconds(50));
            co_await pause.async_wait(asio::redirect_error(use_awaitable, ec));
        }
    }

    asio::awaitable<void> session(tcp::socket socket)
    {
        const std::uint64_t connection = ++connections;
        try {
            beast::tcp_stream stream(std::move(socket));
            beast::flat_buffer buffer;
            stream.expires_after(limits.handshake);
            const bool isTls = co_await beast::async_detect_ssl(stream, buffer, use_awaitable);
            if (isTls) {
                beast::ssl_stream<beast::tcp_stream> secure(std::move(stream), tls);
                beast::get_lowest_layer(secure).expires_after(limits.handshake);
                const std::size_t used = co_await secure.async_handshake(
                    asio::ssl::stream_base::server, buffer.data(), use_awaitable);
                buffer.consume(used);
                co_await serve(secure, buffer, true, connection);
            } else {
                co_await serve(stream, buffer, false, connection);
            }
        } catch (const std::exception &) {
            // A peer that goes away, stalls or speaks nonsense ends its own session only.
        }
    }

    template <typename Stream>
    asio::awaitable<void> refuse(Stream &stream, int status, unsigned version)
    {
        bhttp::response<bhttp::string_body> response{static_cast<bhttp::status>(status), version ? version : 11};
        response.set(bhttp::field::server, "quorva-sandbox");
        response.set(bhttp::field::content_type, "application/json");
        response.body() = std::string(R"({"error":")") + reasonFor(status) + "\"}";
        response.keep_alive(false);
        response.prepare_payload();
        beast::get_lowest_layer(stream).expires_after(limits.write);
        co_await bhttp::async_write(stream, response, use_awaitable);
        beast::get_lowest_layer(stream).socket().shutdown(tcp::socket::shutdown_send);
    }

    // Holds the connection open without answering until the client hangs up.
    template <typename Stream>
    asio::awaitable<void> waitForHangUp(Stream &stream)
    {
        auto &lowest = beast::get_lowest_layer(stream);
        lowest.expires_never();
        beast::error_code ec;
        co_await lowest.socket().async_wait(tcp::socket::wait_read, asio::redirect_error(use_awaitable, ec));
    }

    template <typename Stream>
    asio::awaitable<void> writeRaw(Stream &stream, const std::string &bytes)
    {
        beast::get_lowest_layer(stream).expires_after(limits.write);
        co_await asio::async_write(stream, asio::buffer(bytes), use_awaitable);
    }

    template <typename Stream>
    asio::awaitable<void> serve(Stream &stream, beast::flat_buffer &buffer, bool isTls, std::uint64_t connection)
    {
        auto &lowest = beast::get_lowest_layer(stream);
        for (int sequence = 0;; ++sequence) {
            bhttp::request_parser<bhttp::string_body> parser;
            parser.header_limit(limits.headerBytes);
            parser.body_limit(limits.bodyBytes);
            beast::error_code ec;
            lowest.expires_after(limits.header);
            co_await bhttp::async_read_header(stream, buffer, parser, asio::redirect_error(use_awaitable, ec));
            if (!ec) {
                lowest.expires_after(limits.body);
                co_await bhttp::async_read(stream, buffer, parser, asio::redirect_error(use_awaitable, ec));
            }
            if (ec) {
                // The parser fills in the target once the request line is complete.
                if (const int status = statusForReadError(ec, !parser.get().target().empty()))
                    co_await refuse(stream, status, parser.is_header_done() ? parser.get().version() : 11);
                co_return;
            }
            const bhttp::request<bhttp::string_body> &message = parser.get();

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
            request.connection = connection;
            request.sequence = sequence;

            HttpResponse reply = handler(request);
            if (reply.delay.count() > 0) {
                asio::steady_timer timer(io, reply.delay);
                co_await timer.async_wait(use_awaitable);
            }
            while (reply.releaseWhen && !reply.releaseWhen()) {
                asio::steady_timer poll(io, std::chrono::milliseconds(5));
                co_await poll.async_wait(use_awaitable);
            }
            switch (reply.fault) {
            case HttpResponse::Fault::DropConnection:
                lowest.socket().close();
                co_return;
            case HttpResponse::Fault::Stall:
                co_await waitForHangUp(stream);
                co_return;
            case HttpResponse::Fault::EndlessHeaders:
                co_await writeRaw(stream, "HTTP/1.1 200 OK\r\n");
                for (int line = 0;; ++line)
                    co_await writeRaw(stream, "X-Filler-" + std::to_string(line) + ": " + std::string(1000, 'h') + "\r\n");
            case HttpResponse::Fault::EndlessBody: {
                co_await writeRaw(stream, "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n"
                                          "Transfer-Encoding: chunked\r\n\r\n");
                const std::string piece = chunk(64 * 1024);
                for (;;)
                    co_await writeRaw(stream, piece);
            }
            default:
                break;
            }

            bhttp::response<bhttp::string_body> response{static_cast<bhttp::status>(reply.status),
                                                         message.version()};
            response.set(bhttp::field::server, "quorva-sandbox");
            if (reply.status != 204 && reply.status != 304)
                response.set(bhttp::field::content_type, reply.contentType);
            for (const auto &[name, value] : reply.headers)
                response.set(name, value);
            response.body() = std::move(reply.body);
            // A connection serves a bounded number of requests; the last says so.
            response.keep_alive(message.keep_alive() && std::uint32_t(sequence + 1) < limits.requestsPerConnection);
            response.prepare_payload();

            if (reply.fault == HttpResponse::Fault::TruncateBody || reply.fault == HttpResponse::Fault::StallMidBody) {
                // Announce the full length and send half of it.
                std::ostringstream wire;
                wire << response;
                const std::string bytes = wire.str();
                const std::size_t headerEnd = bytes.find("\r\n\r\n") + 4;
                const std::size_t cut = headerEnd + (bytes.size() - headerEnd) / 2;
                co_await writeRaw(stream, bytes.substr(0, cut));
                if (reply.fault == HttpResponse::Fault::StallMidBody)
                    co_await waitForHangUp(stream);
                else
                    lowest.socket().close();
                co_return;
            }
            const bool keepAlive = response.keep_alive();
            lowest.expires_after(limits.write);
            co_await bhttp::async_write(stream, response, use_awaitable);
            if (reply.fault == HttpResponse::Fault::CloseAfterAnswer) {
                lowest.socket().close();
                co_return;
            }
            if (!keepAlive) {
                lowest.socket().shutdown(tcp::socket::shutdown_send);
                co_return;
            }
        }
    }
};

HttpServer::HttpServer(Handler handler, TlsMaterial material, ServerLimits limits) : d(std::make_unique<Impl>())
{
    d->handler = std::move(handler);
    d->limits = limits;
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
    ::fcntl(d->acceptor.native_handle(), F_SETFD, FD_CLOEXEC);
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
