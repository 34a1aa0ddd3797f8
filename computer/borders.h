// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"

namespace vorlund {

/// True when `neighbour`, from a neighbour slot or a territory index, is owned by a player other than the
/// current one.
inline bool IsEnemy(const GameState& game, int neighbour) {
    return neighbour != NoNeighbour && game.TerritoryAt(neighbour).Occupied &&
           game.TerritoryAt(neighbour).Owner != game.CurrentPlayer;
}

}  // namespace vorlund
