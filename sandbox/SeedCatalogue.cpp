// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "SeedCatalogue.h"

#include <array>
#include <cstdio>

namespace quorva::sandbox {

namespace {
// Numerical Recipes LCG: tiny, portable and identical on every machine.
class Sequence
{
public:
    explicit Sequence(std::uint32_t seed) : m_state(seed) {}
    std::uint32_t next() { return m_state = m_state * 1664525u + 1013904223u; }
    int below(int bound) { return static_cast<int>((next() >> 8) % static_cast<std::uint32_t>(bound)); }

private:
    std::uint32_t m_state;
};

struct App
{
    const char *name;
    int categoryId;
};

const std::array<CategoryRow, 8> kCategories{{
    {1, "Games"}, {2, "Shopping"}, {3, "Finance"}, {4, "Entertainment"},
    {5, "Health & Fitness"}, {6, "Surveys"}, {7, "Travel"}, {kAdultCategory, "Casino"},
}};

constexpr std::array<App, 28> kApps{{
    {"Dragon Realms", 1}, {"Spin City Slots", int(kAdultCategory)}, {"Galaxy Miners", 1}, {"Puzzle Harbor", 1},
    {"Block Kingdom", 1}, {"Turbo Racers", 1}, {"Farm Valley", 1}, {"Word Garden", 1},
    {"CashCart", 2}, {"SnapStyle", 2}, {"Fresh Bites", 2}, {"Pet Haven", 2},
    {"PocketBank", 3}, {"Budget Buddy", 3}, {"CoinNest", 3},
    {"StreamBox", 4}, {"Melody Match", 4}, {"Book Nook", 4}, {"Cine Club", 4},
    {"FitPulse", 5}, {"Zen Minutes", 5}, {"Trail Runner", 5},
    {"Daily Survey Hub", 6}, {"Opinion Jar", 6}, {"QuickQuiz Panel", 6},
    {"Sky Voyage", 7}, {"Hotel Hopper", 7}, {"Rail Pass Go", 7},
}};

const std::array<std::array<const char *, 3>, 8> kTasks{{
    {{"Install and reach level %d", "Win %d matches in the arena", "Complete the tutorial and %d quests"}},
    {{"Sign up and place your first order over $%d", "Create an account and save %d items", "Make a purchase of $%d or more"}},
    {{"Open an account and deposit $%d", "Link a card and make %d payments", "Set up a savings goal of $%d"}},
    {{"Start a free trial and watch %d episodes", "Listen to %d songs", "Subscribe and rate %d titles"}},
    {{"Log %d workouts in your first week", "Complete a %d-day streak", "Track %d meals"}},
    {{"Answer a %d-question survey", "Complete your profile and %d polls", "Share your opinion in %d surveys"}},
    {{"Book a stay of %d nights", "Plan a trip with %d stops", "Search %d destinations and book one"}},
    {{"Spin the reels %d times", "Reach VIP level %d", "Deposit $%d and play a round"}},
}};

void addOffers(Catalogue &catalogue, const char *pub, const char *wall, int count, std::int64_t &nextId,
               std::uint32_t seed)
{
    Sequence random(seed);
    for (int i = 0; i < count; ++i) {
        const App &app = kApps[static_cast<std::size_t>(random.below(static_cast<int>(kApps.size())))];
        const auto &tasks = kTasks[static_cast<std::size_t>(app.categoryId - 1)];
        char description[160];
        std::snprintf(description, sizeof description, tasks[static_cast<std::size_t>(random.below(3))],
                      5 + random.below(46));
        SeedOffer offer;
        offer.pubId = pub;
        offer.corvelId = wall;
        offer.row.id = nextId++;
        offer.row.name = app.name;
        offer.row.description = description;
        // Mostly modest payouts with a long tail, rounded like a real catalogue.
        const int tier = random.below(10);
        offer.row.payout = tier < 6 ? 10 * (5 + random.below(50)) : tier < 9 ? 50 * (10 + random.below(60)) : 500 * (6 + random.below(40));
        offer.row.categoryId = app.categoryId;
        offer.row.featured = random.below(9) == 0;
        offer.popularity = random.below(100000);
        offer.trending = random.below(1000);
        static constexpr std::array<int, 6> delays{0, 1, 6, 24, 48, 72};
        offer.creditDelayHours = delays[static_cast<std::size_t>(random.below(6))];
        catalogue.offers.push_back(std::move(offer));
    }
}
} // namespace

Catalogue seedCatalogue()
{
    Catalogue catalogue;
    catalogue.publishers = {kDemoPublisher, "2077"};
    catalogue.profiles = {
        {kDemoPublisher, kDemoWall, "Demo wall", "Gems", true},
        {kDemoPublisher, kEmptyWall, "Empty wall", "Coins", true},
        {kDemoPublisher, kLargeWall, "Large wall", "Stars", true},
        {"2077", "1", "Hidden currency wall", "Credits", false},
    };
    catalogue.categories.assign(kCategories.begin(), kCategories.end());
    std::int64_t nextId = 1;
    addOffers(catalogue, kDemoPublisher, kDemoWall, kDemoWallOffers, nextId, 42);
    addOffers(catalogue, kDemoPublisher, kLargeWall, kLargeWallOffers, nextId, 4242);
    addOffers(catalogue, "2077", "1", 40, nextId, 7);

    Sequence random(99);
    for (const char *user : {"user-1", "user-2", "user-3"}) {
        const int lines = 3 + random.below(8);
        for (int i = 0; i < lines; ++i) {
            char timestamp[32];
            std::snprintf(timestamp, sizeof timestamp, "2026-%02d-%02dT%02d:%02d:%02d+0000",
                          1 + random.below(10), 1 + random.below(28), random.below(24), random.below(60),
                          random.below(60));
            const App &app = kApps[static_cast<std::size_t>(random.below(static_cast<int>(kApps.size())))];
            const std::int64_t amount = 10 * (1 + random.below(100)) * (random.below(8) == 0 ? -1 : 1);
            catalogue.transactions.push_back({kDemoPublisher, kDemoWall, user, {app.name, timestamp, amount}});
        }
    }
    return catalogue;
}

} // namespace quorva::sandbox
