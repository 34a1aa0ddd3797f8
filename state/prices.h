// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "state/game_state.h"

namespace vorlund {

// All in dollars. The captions of the dialogs are composed from these constants.

struct UnitPrices {
    int Troop;
    int Tank;
};

inline constexpr UnitPrices BuyingPrices{10, 40};
inline constexpr UnitPrices SellingPrices{7, 30};
inline constexpr std::int16_t BarrelsPerDollar = 3;  ///< oil is bought and sold in lots of so many
inline constexpr std::int16_t FactoryPrice = 180;
inline constexpr std::int16_t DefensePrice = 100;

// Prices of upgrading to level 1, 2 and 3
inline constexpr std::array<std::int16_t, MaxLevel> EconomyPrice{150, 300, 450};
inline constexpr std::array<std::int16_t, MaxLevel> WarfarePrice{200, 400, 600};
inline constexpr std::array<std::int16_t, MaxLevel> NuclearPrice{100, 300, 700};

}  // namespace vorlund
