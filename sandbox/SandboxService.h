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
    std::string pathFilter;
};

// The REST endpoints of the offer service, backed by the store.
class SandboxService
{
public:
    SandboxService(SandboxStore &store, FaultOptions faults, std::function<void(const std::string &)> log);

    http::HttpResponse handle(const http::HttpRequest &request);

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

    SandboxStore &m_store;
    PictureFactory m_pictures;
    FaultOptions m_faults;
    std::function<void(const std::string &)> m_log;
    int m_matchingRequests = 0;
};

} // namespace quorva::sandbox
