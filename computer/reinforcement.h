// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

inline constexpr int TroopsPerTenTerritories = 12;  ///< in the pool
inline constexpr int QuietTankFaces = 7;            ///< one of them gives a tank, without an enemy neighbour

/// Adds the turn's new units of the current player, a computer with `territoryCount` territories. A pool
/// of 1.2 troops for each territory, rounded down, is divided among its borders with enemies, and each other
/// border may bring a troop and a tank; without an enemy neighbour each territory gets an equal share of the
/// pool plus one troop. Counts saturate.
void Reinforce(GameState& game, Random& random, int territoryCount);

}  // namespace vorlund
