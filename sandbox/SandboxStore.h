// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

namespace quorva::sandbox {

struct ProfileRow
{
    std::string pubId;
    std::string corvelId;
    std::string profileName;
    std::string currencyName;
    bool currencyVisible = true;
};

struct OfferRow
{
    std::int64_t id = 0;
    std::string name;
    std::string description;
    std::int64_t payout = 0;
    std::int64_t categoryId = 0;
    bool featured = false;
};

struct OfferQuery
{
    std::string sortBy = "popularity";
    bool descending = true;
    std::optional<std::int64_t> categoryId;
    bool featuredOnly = false;
    bool forChildren = false; // leaves out the category that is not for children
    int limit = 30;
    std::int64_t offset = 0;
};

struct CategoryRow
{
    std::int64_t id = 0;
    std::string name;
};

struct TransactionRow
{
    std::string offerName;
    std::string timestamp;
    std::int64_t adjustment = 0;
};

struct TicketRow
{
    std::int64_t ticketId = 0;
    std::string pubId, corvelId, userId;
    std::string name, email, subjectId;
    std::optional<std::string> message, offerName, completedAt;
};

// The sandbox's SQLite database. Seeded once, deterministically, so every fresh start
// serves the same catalogue.
class SandboxStore
{
public:
    explicit SandboxStore(const std::string &databasePath);
    ~SandboxStore();
    SandboxStore(const SandboxStore &) = delete;
    SandboxStore &operator=(const SandboxStore &) = delete;

    static bool isKnownSort(const std::string &sortBy);

    bool publisherExists(const std::string &pubId);
    std::optional<ProfileRow> profile(const std::string &pubId, const std::string &corvelId);
    std::vector<OfferRow> offers(const ProfileRow &profile, const OfferQuery &query);
    std::optional<OfferRow> offer(std::int64_t id);
    std::vector<CategoryRow> categories();
    std::vector<TransactionRow> transactions(const ProfileRow &profile, const std::string &userId);
    std::int64_t insertTicket(const TicketRow &ticket);
    void insertTransaction(const std::string &pubId, const std::string &corvelId, const std::string &userId,
                           const TransactionRow &row);
    std::vector<TicketRow> tickets();

private:
    void createSchema();
    void seedIfEmpty();
    void exec(const char *sql);

    sqlite3 *m_db = nullptr;
};

} // namespace quorva::sandbox
