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

/// The current player's money, for the top of a dialog: "You have $100 to spend.".
std::string MoneyLine(const GameState& game);

/// The territories in which the current player can buy units: own ones with a factory.
TerritorySet BuyTerritories(const GameState& game);

/// The most of `goods` that the current player could buy in addition to the other quantities entered: "at
/// most 11 with $118", the money that these leave. The territory entered limits it if it is one of
/// BuyTerritories.
Most MostToBuy(const GameState& game, const TradeEntries& entries, Goods goods);

/// Buys troops, tanks and oil for the current player; units are stationed in an own territory with a factory.
/// Quantities are rounded down to whole numbers, negative ones become 0, and oil is rounded down to whole
/// lots. The order is carried out as a whole and reported, or refused: for its territory, for quantities that
/// buy nothing or do not fit, or for its price.
std::variant<Refusal, Report> Buy(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
