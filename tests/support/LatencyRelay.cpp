// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "LatencyRelay.h"

#include <utility>

#include <boost/asio.hpp>

#include <atomic>
#include <deque>
#include <future>
#include <list>
#include <mutex>
#include <thread>

namespace asio = boost::asio;
using asio::ip::tcp;
using asio::use_awaitable;
using Clock = std::chrono::steady_clock;

namespace {
// One direction of a connection: what was read, each piece due half a round trip later.
struct Pipe
{
    std::deque<std::pair<Clock::time_point, std::string>> pending;
    bool readerDone = false;
};

struct Link
{
    tcp::socket client;
    tcp::socket server;
    std::atomic<int> inFlight{0};
    Link(tcp::socket c, tcp::socket s) : client(std::move(c)), server(std::move(s)) {}
    void close()
    {
        boost::system::error_code ec;
        client.close(ec);
        server.close(ec);
    }
};
} // namespace

struct LatencyRelay::Impl
{
    asio::io_context io{1};
    tcp::acceptor acceptor{io, tcp::endpoint(asio::ip::make_address("127.0.0.1"), 0)};
    std::uint16_t target;
    std::chrono::milliseconds halfTrip;
    std::list<std::shared_ptr<Link>> links;
    std::atomic<int> accepted{0};
    std::atomic<int> open{0};
    std::atomic<int> mostOpen{0};
    std::thread thread;

    asio::awaitable<void> acceptLoop()
    {
        for (;;) {
            boost::system::error_code ec;
            tcp::socket client = co_await acceptor.async_accept(asio::redirect_error(use_awaitable, ec));
            if (ec)
                co_return;
            tcp::socket server(io);
            co_await server.async_connect(tcp::endpoint(asio::ip::make_address("127.0.0.1"), target),
                                          asio::redirect_error(use_awaitable, ec));
            if (ec)
                continue;
            client.set_option(tcp::no_delay(true), ec);
            server.set_option(tcp::no_delay(true), ec);
            ++accepted;
            mostOpen = std::max(mostOpen.load(), ++open);
            auto link = std::make_shared<Link>(std::move(client), std::move(server));
            links.push_back(link);
            // The client's first bytes also wait out the TCP handshake a real network would
            // have made it wait for, here done at once on loopback.
            asio::co_spawn(io, relay(link, link->client, link->server, 2 * halfTrip), asio::detached);
            asio::co_spawn(io, relay(link, link->server, link->client, {}), asio::detached);
        }
    }

    // Reads from one side and writes to the other half a round trip later, in order.
    asio::awaitable<void> relay(std::shared_ptr<Link> link, tcp::socket &from, tcp::socket &to,
                                std::chrono::milliseconds firstExtra)
    {
        const Clock::time_point opened = Clock::now();
        auto pipe = std::make_shared<Pipe>();
        auto signal = std::make_shared<asio::steady_timer>(io, Clock::time_point::max());
        asio::co_spawn(io, deliver(link, pipe, signal, to), asio::detached);
        char buffer[16384];
        for (;;) {
            boost::system::error_code ec;
            const std::size_t n = co_await from.async_read_some(asio::buffer(buffer), asio::redirect_error(use_awaitable, ec));
            if (ec || n == 0)
                break;
            ++link->inFlight;
            pipe->pending.emplace_back(std::max(Clock::now(), opened + firstExtra) + halfTrip, std::string(buffer, n));
            signal->cancel();
        }
        pipe->readerDone = true;
        signal->cancel();
    }

    asio::awaitable<void> deliver(std::shared_ptr<Link> link, std::shared_ptr<Pipe> pipe,
                                  std::shared_ptr<asio::steady_timer> signal, tcp::socket &to)
    {
        for (;;) {
            boost::system::error_code ec;
            if (pipe->pending.empty()) {
                if (pipe->readerDone)
                    break;
                signal->expires_at(Clock::time_point::max());
                co_await signal->async_wait(asio::redirect_error(use_awaitable, ec));
                continue;
            }
            asio::steady_timer due(io, pipe->pending.front().first);
            co_await due.async_wait(asio::redirect_error(use_awaitable, ec));
            const std::string piece = std::move(pipe->pending.front().second);
            pipe->pending.pop_front();
            co_await asio::async_write(to, asio::buffer(piece), asio::redirect_error(use_awaitable, ec));
            --link->inFlight;
            if (ec)
                break;
        }
        // The other side's end reaches this one, after what was in flight.
        boost::system::error_code ec;
        to.shutdown(tcp::socket::shutdown_send, ec);
        if (link->client.is_open() || link->server.is_open()) {
            link->close();
            links.remove(link);
            --open;
        }
    }
};

LatencyRelay::LatencyRelay(std::uint16_t targetPort, std::chrono::milliseconds roundTrip) : d(std::make_unique<Impl>())
{
    d->target = targetPort;
    d->halfTrip = roundTrip / 2;
    asio::co_spawn(d->io, d->acceptLoop(), asio::detached);
    d->thread = std::thread([this] { d->io.run(); });
}

LatencyRelay::~LatencyRelay()
{
    asio::post(d->io, [this] {
        boost::system::error_code ec;
        d->acceptor.close(ec);
        for (auto &link : d->links)
            link->close();
        d->io.stop();
    });
    d->thread.join();
}

std::uint16_t LatencyRelay::port() const { return d->acceptor.local_endpoint().port(); }
int LatencyRelay::connectionsAccepted() const { return d->accepted; }
int LatencyRelay::mostOpenAtOnce() const { return d->mostOpen; }

void LatencyRelay::dropIdleConnections()
{
    std::promise<void> done;
    asio::post(d->io, [this, &done] {
        for (auto it = d->links.begin(); it != d->links.end();) {
            if ((*it)->inFlight == 0) {
                // A reset, as from a middlebox that forgot the connection.
                boost::system::error_code ec;
                (*it)->client.set_option(tcp::socket::linger(true, 0), ec);
                (*it)->close();
                it = d->links.erase(it);
                --d->open;
            } else {
                ++it;
            }
        }
        done.set_value();
    });
    done.get_future().wait();
}
