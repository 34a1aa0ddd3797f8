// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "actions/outcome.h"
#include "actions/trade.h"
#include "state/game_state.h"
#include "state/territory_set.h"
#include "turn/report.h"

namespace vorlund {

/// What the current player has, for the tops of dialogs: "You have $100 to spend.".
std::string MoneyLine(const GameState& game);

/// Where the current player can buy units: in own territories with a factory.
TerritorySet BuyTerritories(const GameState& game);

/// The most of `goods` that the current player could buy beside the other quantities that are entered: "at
/// most 11 with $118", the money that these leave. A territory counts as far as it is one of BuyTerritories.
Most MostToBuy(const GameState& game, const TradeEntries& entries, Goods goods);

/// Buys troops, tanks and oil for the current player; units go into one of BuyTerritories. Quantities are cut
/// down to whole numbers, negative ones become 0, and oil is lowered to whole lots. The whole order is
/// carried out and reported, or refused: for its territory, as no transaction at all, or for its price.
std::variant<Refusal, Report> Buy(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
