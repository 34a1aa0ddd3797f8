// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

inline constexpr std::int16_t SettlingTroops = 2;
inline constexpr int DefenseFaces = 6;  ///< one of them gives a defense

/// Claims up to `quota` unoccupied neighbours of the current player's territories, with two new troops and by
/// chance a defense in each. Two draws over 10 decide from which end territories and neighbour slots are
/// scanned; a draw over 6 follows each claim. Appends a line for each claim to `body` and returns the number
/// of claims.
int Expand(GameState& game, Random& random, int quota, std::string& body);

}  // namespace vorlund
