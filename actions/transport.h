// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "actions/order.h"
#include "state/game_state.h"
#include "turn/commands.h"

namespace vorlund {

/// A move was carried out.
struct Moved {
    std::string StatusLine;

    bool operator==(const Moved&) const = default;
};

/// Why the dialog's Move command is not available: the current player has no move left.
WhyNot WhyNoMove(const GameState& game);

/// How many moves the current player can still make this turn.
int MovesToMake(const GameState& game);

/// The moves that the current player has left: "You have 2 moves left this turn.".
std::string MovesLeftText(const GameState& game);

/// The Sources and the Destinations of the current player's moves; none without a move left.
TerritorySet MoveSources(const GameState& game);
TerritorySet MoveDestinations(const GameState& game, std::string_view from);

/// The most troops or tanks that a move could take; see MostToSend.
Most MostToMove(const GameState& game, const OrderEntries& entries, Goods goods);

/// Moves units of the current player from an own territory into an own or unoccupied neighbour. That uses up
/// a move, claims the destination, and abandons the source if it is left empty. Troops are rounded down after
/// the check that there is anything to move, tanks to the nearest number (halves to even) before it. A beep
/// when WhyNoMove has a reason.
std::variant<Beep, Refusal, Moved> Tran(GameState& game, const OrderEntries& entries);

}  // namespace vorlund
