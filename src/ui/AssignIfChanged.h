// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace quorva::detail {
// Stores the value; true when it differed, so that the caller tells its listeners.
template <typename T>
bool assignIfChanged(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}
} // namespace quorva::detail
