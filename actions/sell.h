// SPDX-License-Identifier: MIT
#pragma once

#include <variant>

#include "actions/outcome.h"
#include "actions/trade.h"
#include "state/game_state.h"
#include "state/territory_set.h"
#include "turn/report.h"

namespace vorlund {

/// The sale was carried out, it cost the seller's life, and nobody is left alive: the game is over, without a
/// winner and without a report.
struct NoSurvivor {
    bool operator==(const NoSurvivor&) const = default;
};

/// Where the current player can sell units: in own territories in which some stand.
TerritorySet SellTerritories(const GameState& game);

/// The most of `goods` that the current player could sell: "10 troops in 7", as far as a territory is entered
/// from which units can be sold, or "33 barrels". The other quantities that are entered count as far as they
/// could be sold by themselves.
Most MostToSell(const GameState& game, const TradeEntries& entries, Goods goods);

/// Sells the current player's troops and tanks out of one own territory, and oil. Quantities are cut down to
/// whole numbers, negative ones become 0, and oil is lowered to whole lots. A territory whose last units are
/// sold is given up, with the last of them the seller dies, and with the last seller the game is over. The
/// whole sale is carried out and reported, or refused.
std::variant<Refusal, Report, NoSurvivor> Sell(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
