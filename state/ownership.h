// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"

namespace vorlund {

// Ownership is recorded three times: in `Occupied` and `Owner` of the territory and in `Owns` of the player.
// Only these functions change it, so that the three agree.

/// How many territories player index `player` owns.
int CountOwned(const GameState& game, int player);

/// Gives territory index `territory`, which nobody or `player` owns, to player index `player`. Units and
/// buildings do not change.
void Claim(GameState& game, int territory, int player);

/// Takes territory index `territory` from its owner, so that nobody owns it. Its factory is subtracted from
/// the owner's count, factory and defense are removed; its units do not change.
void Abandon(GameState& game, int territory);

/// Gives territory index `territory`, owned by another player, to the current player; `force`, the survivors
/// of the battle, is stationed there. Its factory and defense are removed as by Abandon.
void Capture(GameState& game, int territory, const Units& force);

}  // namespace vorlund
