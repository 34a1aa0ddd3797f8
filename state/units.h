// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "state/int16.h"

namespace vorlund {

/// A number of units of each kind: stationed, sent, traded or lost. Negative only in a player's total and as
/// the operand of a subtraction.
struct Units {
    std::int16_t Troops = 0;
    std::int16_t Tanks = 0;

    constexpr bool IsEmpty() const { return Troops == 0 && Tanks == 0; }
    constexpr Units operator-() const { return {ClampInt16(-Troops), ClampInt16(-Tanks)}; }

    bool operator==(const Units&) const = default;
};

/// Adds `more` to `units`; each count saturates.
constexpr void Add(Units& units, const Units& more) {
    Add(units.Troops, more.Troops);
    Add(units.Tanks, more.Tanks);
}

/// The sum of `a` and `b`; nothing when a count does not fit 16 bits.
constexpr std::optional<Units> Sum(const Units& a, const Units& b) {
    Units sum = a;
    Add(sum, b);
    const bool fits = sum.Troops == a.Troops + b.Troops && sum.Tanks == a.Tanks + b.Tanks;
    return fits ? std::optional(sum) : std::nullopt;
}

}  // namespace vorlund
