// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "actions/outcome.h"
#include "actions/trade.h"
#include "state/game_state.h"
#include "turn/report.h"

namespace vorlund {

/// What the current player has, for the tops of dialogs: "You have $100 to spend.".
std::string MoneyLine(const GameState& game);

/// Buys troops, tanks and oil for the current player; units go into an own
/// territory with a factory. Quantities are cut down to whole numbers, negative ones become 0, and oil is
/// lowered to whole lots. The whole order is carried out and reported, or refused: for its territory, as no
/// transaction at all, or for its price.
std::variant<Refusal, Report> Buy(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
