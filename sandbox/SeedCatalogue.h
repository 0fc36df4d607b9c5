// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SandboxStore.h"

#include <string>
#include <vector>

namespace quorva::sandbox {

struct SeedOffer
{
    std::string pubId;
    std::string corvelId;
    OfferRow row;
    std::int64_t popularity = 0;
    std::int64_t trending = 0;
    std::int64_t creditDelayHours = 0;
};

struct SeedTransaction
{
    std::string pubId, corvelId, userId;
    TransactionRow row;
};

struct Catalogue
{
    std::vector<std::string> publishers;
    std::vector<ProfileRow> profiles;
    std::vector<CategoryRow> categories;
    std::vector<SeedOffer> offers;
    std::vector<SeedTransaction> transactions;
};

// The demo publisher and its walls: a full one, an empty one and a large one.
inline constexpr const char *kDemoPublisher = "1042";
inline constexpr const char *kDemoWall = "7";
inline constexpr const char *kEmptyWall = "8";
inline constexpr const char *kLargeWall = "9";
inline constexpr int kDemoWallOffers = 320;
inline constexpr int kLargeWallOffers = 3000;

// Always the same catalogue: generated from a fixed seed.
// The category whose offers are not for children (a casino): an offers request marked
// coppa=1 leaves them out.
inline constexpr std::int64_t kAdultCategory = 8;

Catalogue seedCatalogue();

} // namespace quorva::sandbox
