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

/// Why the dialog's Move command is not enabled for the current player: no move is left.
WhyNot WhyNoMove(const GameState& game);

/// The moves that the current player has left: "You have 2 moves left this turn.".
std::string MovesLeftText(const GameState& game);

/// From where the current player can move units, and where to from the one that is entered as `from` or else
/// from any; none without a move left. See Sources and Destinations.
TerritorySet MoveSources(const GameState& game);
TerritorySet MoveDestinations(const GameState& game, std::string_view from);

/// The most troops or tanks that a move could take; see MostToSend.
Most MostToMove(const GameState& game, const OrderEntries& entries, Goods goods);

/// Moves units of the current player into an own or unoccupied neighbour of an own territory, which uses up
/// a move, claims the destination, and gives up a source left without units. Troops are cut down to a whole
/// number, after the check that there is anything to move; tanks are rounded at once, halves to the even
/// neighbour. A beep when there is WhyNoMove.
std::variant<Beep, Refusal, Moved> Tran(GameState& game, const OrderEntries& entries);

}  // namespace vorlund
