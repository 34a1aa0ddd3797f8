// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "state/game_state.h"

namespace vorlund {

/// What the map says of one territory and no game changes.
struct WorldEntry {
    std::string_view Name;
    std::int16_t Value;
    std::int16_t MapX;
    std::int16_t MapY;
    bool HasOil;
    std::array<std::int16_t, NeighbourSlots>
        Neighbours;  ///< in slot order; the order counts, it is not sorted
};

/// The world by territory index.
extern const std::array<WorldEntry, NumTerritories> World;

/// Writes the world into `game` and clears everything that a game changes on territories and players: nobody
/// owns anything, and all five players are alive, human, at level 0 and before their first turn. Names,
/// treasuries, `Factories`, moves and attacks left and the global fields are left alone.
void InitWorld(GameState& game);

/// What the game is reset to when the program starts: the world as InitWorld writes it, no end of a game and
/// no computer player's turn behind it.
void ResetGame(GameState& game);

/// True when the current player may move (`isAttack` false) or attack (true) from territory index `from` to
/// `to`. Any indices may be asked for. A move may go into an own or an unoccupied neighbour, an attack into
/// one that another player holds.
bool CanReach(const GameState& game, bool isAttack, int from, int to);

}  // namespace vorlund
