// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"

namespace vorlund {

// Ownership is recorded three times: `Occupied` and `Owner` of the territory and `Owns` of the player. It
// changes only here, so that the three agree.

/// Gives territory index `territory`, which nobody or `player` holds, to player index `player`. Its units and
/// buildings are not touched.
void Claim(GameState& game, int territory, int player);

/// Takes territory index `territory`, which somebody holds, from its owner and leaves it to nobody. Its
/// factory comes off the owner's count and its defense is gone; its units are not touched.
void Abandon(GameState& game, int territory);

/// Gives territory index `territory`, held by another player, to the current player with the force that
/// survived the battle for it. Its factory and defense are destroyed, the factory comes off the loser's
/// count.
void Capture(GameState& game, int territory, const Units& force);

}  // namespace vorlund
