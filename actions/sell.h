// SPDX-License-Identifier: MIT
#pragma once

#include <variant>

#include "actions/outcome.h"
#include "actions/trade.h"
#include "state/game_state.h"
#include "state/territory_set.h"
#include "turn/report.h"

namespace vorlund {

/// The sale was carried out and eliminated the seller, the last player alive: the game is over without a
/// winner, and there is no report.
struct NoSurvivor {
    bool operator==(const NoSurvivor&) const = default;
};

/// The territories in which the current player can sell units: own ones with units.
TerritorySet SellTerritories(const GameState& game);

/// The most of `goods` that the current player could sell: "10 troops in 7", if a territory is entered
/// from which units can be sold, or "33 barrels". The other quantities entered limit it if they could be sold
/// by themselves.
Most MostToSell(const GameState& game, const TradeEntries& entries, Goods goods);

/// Sells oil, and troops and tanks from one own territory, of the current player. Quantities are rounded down
/// to whole numbers, negative ones become 0, and oil is rounded down to whole lots. A territory whose last
/// units are sold is abandoned, which eliminates a player without another one. The order is carried out as a
/// whole and reported, or refused.
std::variant<Refusal, Report, NoSurvivor> Sell(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
