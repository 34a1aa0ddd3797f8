// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vorlund {

/// True when `value` can be kept in a field of the game, -32768 to 32767.
constexpr bool FitsInt16(std::int64_t value) {
    return value >= std::numeric_limits<std::int16_t>::min() &&
           value <= std::numeric_limits<std::int16_t>::max();
}

/// `value` limited to what a field of the game can keep, -32768 to 32767.
constexpr std::int16_t ClampInt16(std::int64_t value) {
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(value, std::numeric_limits<std::int16_t>::min(),
                                                              std::numeric_limits<std::int16_t>::max()));
}

/// Adds `amount` to a field of the game; the sum saturates instead of wrapping.
constexpr void Add(std::int16_t& field, std::int64_t amount) {
    field = ClampInt16(field + amount);
}

}  // namespace vorlund
