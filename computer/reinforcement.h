// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

inline constexpr int TroopsPerTenTerritories = 12;  ///< in the pool
inline constexpr int QuietTankFaces = 7;  ///< without an enemy at the borders, one of them is a tank

/// Gives the current player, a computer with `territoryCount` territories, its new units of the turn. A pool
/// of 1.2 troops a territory, rounded down, is shared out over the borders with enemies, and other borders
/// have a chance of a troop and a tank each; without an enemy at the borders each territory gets an even
/// share and one more. Units stop at the end of their range.
void Reinforce(GameState& game, Random& random, int territoryCount);

}  // namespace vorlund
