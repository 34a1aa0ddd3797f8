// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "state/game_state.h"
#include "state/random.h"
#include "turn/report.h"

namespace vorlund {

// Per turn; in dollars unless the name says barrels
inline constexpr int TroopUpkeep = 2;
inline constexpr int FactoryUpkeep = 1;
inline constexpr int TankUpkeepBarrels = 1;
inline constexpr int OilFieldBarrels = 15;
inline constexpr int MissingBarrelPrice = 1;
inline constexpr int EconomyPercent = 10;  ///< added to the income for each level
inline constexpr int DebtTurnsBeforeCollapse = 3;
inline constexpr std::array<int, 4> ResearchFaces{13, 7, 5, 3};  ///< by Nuclear level; one face finds a bomb

/// The income from a territory of `value`, before the Economy level is applied.
constexpr int TerritoryIncome(int value) {
    return 4 * value + 15;
}

/// The upkeep of the player's troops and factories, in dollars.
std::int16_t MoneyUpkeep(const Player& player);

/// `income` raised by the player's Economy level, rounded down to whole dollars.
int RaisedByEconomy(int income, const Player& player);

/// Runs the upkeep at the start of the turn of player index `player`, a living human, and reports it. It
/// charges for troops, factories (money) and tanks (oil), adds the income from territories and oil fields,
/// rolls for a bomb (one draw in any case), pays missing oil with money, and counts a turn that ends in debt;
/// the third eliminates the player. Sums saturate at 16 bits.
Report RunUpkeep(GameState& game, Random& random, int player);

}  // namespace vorlund
