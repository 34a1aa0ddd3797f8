#pragma once

#include <string>
#include <variant>

#include "actions/order.h"
#include "state/game_state.h"

namespace vorlund {

/// A move was carried out.
struct Moved {
    std::string StatusLine;

    bool operator==(const Moved&) const = default;
};

/// True when the current player has a move left this turn: one or two.
bool CanMove(const GameState& game);

/// The moves that the current player has left: "You have 2 moves left this turn.".
std::string MovesLeftText(const GameState& game);

/// Moves units of the current player into an own or unoccupied neighbour of an own territory, which uses up
/// a move, claims the destination, and gives up a source left without units. Troops are cut down to a whole
/// number, after the check that there is anything to move; tanks are rounded at once, halves to the even
/// neighbour. `moveEnabled` says whether the dialog's Move command can be used; without it there is a beep.
std::variant<Beep, Refusal, Moved> Tran(GameState& game, bool moveEnabled, const OrderEntries& entries);

}  // namespace vorlund
