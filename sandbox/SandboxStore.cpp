// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SandboxStore.h"
#include "SeedCatalogue.h"

#include <sqlite3.h>

#include <stdexcept>

namespace quorva::sandbox {

namespace {
// Minimal RAII statement with positional binding.
class Statement
{
public:
    Statement(sqlite3 *db, const std::string &sql)
    {
        if (sqlite3_prepare_v2(db, sql.c_str(), -1, &m_stmt, nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string("SQL error: ") + sqlite3_errmsg(db));
    }
    ~Statement() { sqlite3_finalize(m_stmt); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    Statement &bind(const std::string &value)
    {
        sqlite3_bind_text(m_stmt, ++m_index, value.c_str(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
        return *this;
    }
    Statement &bind(const std::optional<std::string> &value)
    {
        if (value)
            return bind(*value);
        sqlite3_bind_null(m_stmt, ++m_index);
        return *this;
    }
    Statement &bind(std::int64_t value)
    {
        sqlite3_bind_int64(m_stmt, ++m_index, value);
        return *this;
    }
    bool step()
    {
        const int rc = sqlite3_step(m_stmt);
        if (rc != SQLITE_ROW && rc != SQLITE_DONE)
            throw std::runtime_error(std::string("SQL step failed: ") + sqlite3_errstr(rc));
        return rc == SQLITE_ROW;
    }
    std::int64_t integer(int column) const { return sqlite3_column_int64(m_stmt, column); }
    std::string text(int column) const
    {
        // By length, not up to the first NUL: texts come back byte for byte.
        const auto *value = sqlite3_column_text(m_stmt, column);
        const int size = sqlite3_column_bytes(m_stmt, column);
        return value ? std::string(reinterpret_cast<const char *>(value), static_cast<std::size_t>(size)) : std::string();
    }
    std::optional<std::string> optionalText(int column) const
    {
        if (sqlite3_column_type(m_stmt, column) == SQLITE_NULL)
            return std::nullopt;
        return text(column);
    }

private:
    sqlite3_stmt *m_stmt = nullptr;
    int m_index = 0;
};

const char *orderClause(const std::string &sortBy, bool descending)
{
    // Each order lists the best offers first for "desc"; the id keeps paging stable.
    if (sortBy == "trending")
        return descending ? "trending DESC, id ASC" : "trending ASC, id DESC";
    if (sortBy == "payout")
        return descending ? "payout DESC, id ASC" : "payout ASC, id DESC";
    if (sortBy == "credit_delay")
        return descending ? "credit_delay_hours ASC, id ASC" : "credit_delay_hours DESC, id DESC";
    return descending ? "popularity DESC, id ASC" : "popularity ASC, id DESC";
}

OfferRow offerFrom(const Statement &s)
{
    OfferRow row;
    row.id = s.integer(0);
    row.name = s.text(1);
    row.description = s.text(2);
    row.payout = s.integer(3);
    row.categoryId = s.integer(4);
    row.featured = s.integer(5) != 0;
    return row;
}
} // namespace

SandboxStore::SandboxStore(const std::string &databasePath)
{
    if (sqlite3_open(databasePath.c_str(), &m_db) != SQLITE_OK)
        throw std::runtime_error("cannot open database " + databasePath);
    exec("PRAGMA journal_mode=WAL");
    createSchema();
    seedIfEmpty();
}

SandboxStore::~SandboxStore()
{
    sqlite3_close(m_db);
}

void SandboxStore::exec(const char *sql)
{
    char *error = nullptr;
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, &error) != SQLITE_OK) {
        const std::string message = error ? error : "unknown";
        sqlite3_free(error);
        throw std::runtime_error("SQL error: " + message);
    }
}

void SandboxStore::createSchema()
{
    exec(R"(
        CREATE TABLE IF NOT EXISTS publishers (pub_id TEXT PRIMARY KEY);
        CREATE TABLE IF NOT EXISTS profiles (
            pub_id TEXT, corvel_id TEXT, name TEXT, currency_name TEXT, currency_visible INTEGER,
            PRIMARY KEY (pub_id, corvel_id));
        CREATE TABLE IF NOT EXISTS categories (id INTEGER PRIMARY KEY, name TEXT);
        CREATE TABLE IF NOT EXISTS offers (
            id INTEGER PRIMARY KEY, pub_id TEXT, corvel_id TEXT, name TEXT, description TEXT,
            payout INTEGER, category_id INTEGER, featured INTEGER, popularity INTEGER,
            trending INTEGER, credit_delay_hours INTEGER);
        CREATE INDEX IF NOT EXISTS offers_by_profile ON offers (pub_id, corvel_id);
        CREATE TABLE IF NOT EXISTS transactions (
            pub_id TEXT, corvel_id TEXT, user_id TEXT, offer_name TEXT, timestamp TEXT,
            adjustment INTEGER);
        CREATE TABLE IF NOT EXISTS tickets (
            ticket_id INTEGER PRIMARY KEY AUTOINCREMENT, pub_id TEXT, corvel_id TEXT,
            user_id TEXT, name TEXT, email TEXT, subject_id TEXT, message TEXT,
            offer_name TEXT, completed_at TEXT);
    )");
}

void SandboxStore::seedIfEmpty()
{
    {
        Statement count(m_db, "SELECT COUNT(*) FROM publishers");
        count.step();
        if (count.integer(0) > 0)
            return;
    }
    const Catalogue catalogue = seedCatalogue();
    exec("BEGIN");
    for (const auto &pub : catalogue.publishers)
        Statement(m_db, "INSERT INTO publishers VALUES (?)").bind(pub).step();
    for (const auto &p : catalogue.profiles) {
        Statement(m_db, "INSERT INTO profiles VALUES (?,?,?,?,?)")
            .bind(p.pubId).bind(p.corvelId).bind(p.profileName).bind(p.currencyName)
            .bind(std::int64_t(p.currencyVisible)).step();
    }
    for (const auto &c : catalogue.categories)
        Statement(m_db, "INSERT INTO categories VALUES (?,?)").bind(c.id).bind(c.name).step();
    for (const auto &o : catalogue.offers) {
        Statement(m_db, "INSERT INTO offers VALUES (?,?,?,?,?,?,?,?,?,?,?)")
            .bind(o.row.id).bind(o.pubId).bind(o.corvelId).bind(o.row.name).bind(o.row.description)
            .bind(o.row.payout).bind(o.row.categoryId).bind(std::int64_t(o.row.featured))
            .bind(o.popularity).bind(o.trending).bind(o.creditDelayHours).step();
    }
    for (const auto &t : catalogue.transactions)
        insertTransaction(t.pubId, t.corvelId, t.userId, t.row);
    exec("COMMIT");
}

bool SandboxStore::isKnownSort(const std::string &sortBy)
{
    return sortBy == "popularity" || sortBy == "trending" || sortBy == "payout" || sortBy == "credit_delay";
}

bool SandboxStore::publisherExists(const std::string &pubId)
{
    Statement s(m_db, "SELECT 1 FROM publishers WHERE pub_id = ?");
    return s.bind(pubId).step();
}

std::optional<ProfileRow> SandboxStore::profile(const std::string &pubId, const std::string &corvelId)
{
    Statement s(m_db, "SELECT name, currency_name, currency_visible FROM profiles WHERE pub_id = ? AND corvel_id = ?");
    if (!s.bind(pubId).bind(corvelId).step())
        return std::nullopt;
    return ProfileRow{pubId, corvelId, s.text(0), s.text(1), s.integer(2) != 0};
}

std::vector<OfferRow> SandboxStore::offers(const ProfileRow &profile, const OfferQuery &query)
{
    std::string sql = "SELECT id, name, description, payout, category_id, featured FROM offers "
                      "WHERE pub_id = ? AND corvel_id = ?";
    if (query.categoryId)
        sql += " AND category_id = ?";
    if (query.featuredOnly)
        sql += " AND featured = 1";
    if (query.forChildren)
        sql += " AND category_id <> " + std::to_string(kAdultCategory);
    sql += std::string(" ORDER BY ") + orderClause(query.sortBy, query.descending) + " LIMIT ? OFFSET ?";
    Statement s(m_db, sql);
    s.bind(profile.pubId).bind(profile.corvelId);
    if (query.categoryId)
        s.bind(*query.categoryId);
    s.bind(std::int64_t(query.limit)).bind(query.offset);
    std::vector<OfferRow> rows;
    while (s.step())
        rows.push_back(offerFrom(s));
    return rows;
}

std::optional<OfferRow> SandboxStore::offer(std::int64_t id)
{
    Statement s(m_db, "SELECT id, name, description, payout, category_id, featured FROM offers WHERE id = ?");
    if (!s.bind(id).step())
        return std::nullopt;
    return offerFrom(s);
}

std::vector<CategoryRow> SandboxStore::categories()
{
    Statement s(m_db, "SELECT id, name FROM categories ORDER BY id");
    std::vector<CategoryRow> rows;
    while (s.step())
        rows.push_back({s.integer(0), s.text(1)});
    return rows;
}

std::vector<TransactionRow> SandboxStore::transactions(const ProfileRow &profile, const std::string &userId)
{
    Statement s(m_db, "SELECT offer_name, timestamp, adjustment FROM transactions "
                      "WHERE pub_id = ? AND corvel_id = ? AND user_id = ? ORDER BY timestamp DESC, rowid DESC");
    s.bind(profile.pubId).bind(profile.corvelId).bind(userId);
    std::vector<TransactionRow> rows;
    while (s.step())
        rows.push_back({s.text(0), s.text(1), s.integer(2)});
    return rows;
}

void SandboxStore::insertTransaction(const std::string &pubId, const std::string &corvelId,
                                     const std::string &userId, const TransactionRow &row)
{
    Statement(m_db, "INSERT INTO transactions VALUES (?,?,?,?,?,?)")
        .bind(pubId).bind(corvelId).bind(userId).bind(row.offerName)
        .bind(row.timestamp).bind(row.adjustment).step();
}

std::int64_t SandboxStore::insertTicket(const TicketRow &t)
{
    Statement(m_db, "INSERT INTO tickets (pub_id, corvel_id, user_id, name, email, subject_id, "
                    "message, offer_name, completed_at) VALUES (?,?,?,?,?,?,?,?,?)")
        .bind(t.pubId).bind(t.corvelId).bind(t.userId).bind(t.name).bind(t.email)
        .bind(t.subjectId).bind(t.message).bind(t.offerName).bind(t.completedAt).step();
    return sqlite3_last_insert_rowid(m_db);
}

std::vector<TicketRow> SandboxStore::tickets()
{
    Statement s(m_db, "SELECT ticket_id, pub_id, corvel_id, user_id, name, email, subject_id, "
                      "message, offer_name, completed_at FROM tickets ORDER BY ticket_id");
    std::vector<TicketRow> rows;
    while (s.step()) {
        rows.push_back({s.integer(0), s.text(1), s.text(2), s.text(3), s.text(4), s.text(5),
                        s.text(6), s.optionalText(7), s.optionalText(8), s.optionalText(9)});
    }
    return rows;
}

} // namespace quorva::sandbox
