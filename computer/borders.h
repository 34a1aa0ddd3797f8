// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"

namespace vorlund {

/// True when `neighbour`, taken from a neighbour slot, is a territory that another player than the current
/// one holds.
inline bool IsEnemy(const GameState& game, int neighbour) {
    return neighbour != NoNeighbour && game.TerritoryAt(neighbour).Occupied &&
           game.TerritoryAt(neighbour).Owner != game.CurrentPlayer;
}

}  // namespace vorlund
