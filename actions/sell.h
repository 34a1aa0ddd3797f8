// SPDX-License-Identifier: MIT
#pragma once

#include <variant>

#include "actions/outcome.h"
#include "actions/trade.h"
#include "state/game_state.h"
#include "turn/report.h"

namespace vorlund {

/// The sale was carried out, it cost the seller's life, and nobody is left alive: the game is over, without a
/// winner and without a report.
struct NoSurvivor {
    bool operator==(const NoSurvivor&) const = default;
};

/// Sells the current player's troops and tanks out of one own territory, and oil. Quantities are cut down to
/// whole numbers, negative ones become 0, and oil is lowered to whole lots. A territory whose last units are
/// sold is given up, with the last of them the seller dies, and with the last seller the game is over. The
/// whole sale is carried out and reported, or refused.
std::variant<Refusal, Report, NoSurvivor> Sell(GameState& game, const TradeEntries& entries);

}  // namespace vorlund
