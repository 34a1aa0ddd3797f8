// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "state/game_state.h"

namespace vorlund {

/// The properties of a territory that no game changes.
struct WorldEntry {
    std::string_view Name;
    std::int16_t Value;
    std::int16_t MapX;
    std::int16_t MapY;
    bool HasOil;
    std::array<std::int16_t, NeighbourSlots>
        Neighbours;  ///< unsorted; the computer player scans the slots in this order
};

/// The world by territory index.
extern const std::array<WorldEntry, NumTerritories> World;

/// Writes the world into `game` and resets territories and players: nobody owns a territory, and all five
/// players are alive, human, at level 0 and before their first turn. Names, `Money`, `Oil`, `Factories`,
/// `MovesLeft`, `AttacksLeft` and the fields of GameState itself are kept.
void InitWorld(GameState& game);

/// Resets `game` at the start of the program: InitWorld, and neither GameOver nor ComputerTurnEnded.
void ResetGame(GameState& game);

/// True when the current player may move (`isAttack` false) or attack (true) from territory index `from` to
/// `to`, which may be any numbers. A move goes into an own or unoccupied neighbour, an attack into one that
/// another player owns.
bool CanReach(const GameState& game, bool isAttack, int from, int to);

}  // namespace vorlund
