// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

// A TCP relay on loopback in front of a server: each direction's bytes arrive half a round
// trip after they were sent, as on a phone's network, and a new connection's first bytes a
// round trip later still, for the handshake. It counts the connections it was
// asked for, and can drop the idle ones as a carrier's NAT does. Runs on a thread of its own.
class LatencyRelay
{
public:
    LatencyRelay(std::uint16_t targetPort, std::chrono::milliseconds roundTrip);
    ~LatencyRelay();

    std::uint16_t port() const;
    // Connections accepted so far, and the most that were open at once.
    int connectionsAccepted() const;
    int mostOpenAtOnce() const;
    // Resets every connection that has nothing in flight, as a middlebox that forgot it.
    void dropIdleConnections();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
