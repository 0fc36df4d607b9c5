// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace quorva::sandbox {

// Draws a distinct, deterministic offer picture for each offer and keeps the PNG bytes.
class PictureFactory
{
public:
    const std::string &png(std::int64_t offerId, const std::string &title);

private:
    std::unordered_map<std::int64_t, std::string> m_cache;
};

} // namespace quorva::sandbox
