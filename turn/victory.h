// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/game_state.h"
#include "turn/screens.h"

namespace vorlund {

/// Ends the life of player index `player`, who must be alive, if they own no territory; the units do not
/// count. True when this call did it.
bool CheckDead(GameState& game, int player);

/// The words for a player whose last territory has been captured: "Player 3 is now dead.".
std::string NowDeadText(int player);

/// The words for a player who has given up their own last territory.
inline constexpr const char* KilledYourselfText =
    "You have killed yourself... you have no troops or tanks remaining.";

/// Ends the game with player index `player` as winner. `computerReport` is what the winner's own turn has
/// reported so far when the win comes out of a computer's turn, and null when it is found at the change of
/// turn.
void DeclareWinner(GameState& game, Screens& screens, int player, const Report* computerReport);

/// Shows that the game has ended without a winner, as an order has found.
void NobodyWins(Screens& screens);

}  // namespace vorlund
