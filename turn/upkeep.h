// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "state/game_state.h"
#include "state/random.h"
#include "turn/report.h"

namespace vorlund {

// Of a turn, in dollars but for the oil
inline constexpr int TroopUpkeep = 2;
inline constexpr int FactoryUpkeep = 1;
inline constexpr int TankUpkeepBarrels = 1;
inline constexpr int OilFieldBarrels = 15;
inline constexpr int MissingBarrelPrice = 1;
inline constexpr int EconomyPercent = 10;  ///< on top of the income, for each level
inline constexpr int DebtTurnsBeforeCollapse = 3;
inline constexpr std::array<int, 4> ResearchFaces{13, 7, 5, 3};  ///< by Nuclear level; one face is the bomb

/// What a territory of `value` pays, before the Economy level.
constexpr int TerritoryIncome(int value) {
    return 4 * value + 15;
}

/// What troops and factories cost a player each turn.
std::int16_t MoneyUpkeep(const Player& player);

/// `income` raised by the player's Economy level, cut down to whole dollars.
int RaisedByEconomy(int income, const Player& player);

/// The upkeep at the start of a human player's turn: charges money for troops and factories and a barrel a
/// tank, pays every territory's income raised by the Economy level, gives 15 barrels an oil field, may
/// deliver a researched bomb (one draw over the faces of the Nuclear level, made in any case), settles
/// missing oil at a dollar a barrel, and counts the turns in debt; the third one collapses the player's
/// empire. Sums are held to 16 bits. `player` is the index of a living human; the report says what happened.
Report RunUpkeep(GameState& game, Random& random, int player);

}  // namespace vorlund
