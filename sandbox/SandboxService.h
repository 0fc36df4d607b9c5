// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "HttpServer.h"
#include "PictureFactory.h"
#include "SandboxStore.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace quorva::sandbox {

// Faults injected for reliability tests; each applies to the paths that contain
// pathFilter (all when empty).
struct FaultOptions
{
    std::chrono::milliseconds latency{0};
    bool dropConnections = false;
    int dropEvery = 0;                  // drop every Nth matching request
    std::optional<int> forcedStatus;
    enum class Body { Intact, Truncated, NotJson } body = Body::Intact;
    bool closeIdle = false;             // close each kept connection after its answer
    bool dropReused = false;            // hang up, unanswered, on a request a kept connection brought
    std::string pathFilter;

    // The same faults as text, one "key=value" a line: latency (ms), drop (0 or 1),
    // drop-every, status, body (intact, truncated or not-json), close-idle (0 or 1),
    // drop-reused (0 or 1) and path. Unknown keys and values are ignored.
    static FaultOptions parse(const std::string &text);
};

// The REST endpoints of the offer service, backed by the store.
class SandboxService
{
public:
    SandboxService(SandboxStore &store, FaultOptions faults, std::function<void(const std::string &)> log);

    http::HttpResponse handle(const http::HttpRequest &request);

    // Faults may be changed while the sandbox runs by writing this file, which only a
    // caller on this machine can do; while it is missing or empty, the starting faults
    // apply.
    void setFaultFile(std::string path) { m_faultFile = std::move(path); }

private:
    http::HttpResponse route(const http::HttpRequest &request);
    http::HttpResponse offers(const http::HttpRequest &request, const std::string &pub, const std::string &wall);
    http::HttpResponse profile(const std::string &pub, const std::string &wall);
    http::HttpResponse categories();
    http::HttpResponse transactions(const std::string &pub, const std::string &wall, const std::string &user);
    http::HttpResponse createTicket(const http::HttpRequest &request, const std::string &pub,
                                    const std::string &wall, const std::string &user);
    http::HttpResponse listTickets();
    http::HttpResponse credit(const http::HttpRequest &request, const std::string &pub, const std::string &wall,
                              const std::string &user);
    http::HttpResponse picture(std::int64_t offerId);
    http::HttpResponse clickPage(std::int64_t offerId);
    void applyFaults(const http::HttpRequest &request, http::HttpResponse &response);
    const FaultOptions &currentFaults();

    SandboxStore &m_store;
    PictureFactory m_pictures;
    FaultOptions m_faults;
    std::string m_faultFile;
    std::string m_faultFileText;
    FaultOptions m_fileFaults;
    std::function<void(const std::string &)> m_log;
    int m_matchingRequests = 0;
};

} // namespace quorva::sandbox
