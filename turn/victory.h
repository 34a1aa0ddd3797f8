// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/game_state.h"
#include "turn/screens.h"

namespace vorlund {

/// Marks player index `player`, who must be alive, as dead if they own no territory; totals of units do not
/// matter. True when it did.
bool CheckDead(GameState& game, int player);

/// True when the game has ended with player index `player` as winner.
bool HasWon(const GameState& game, int player);

/// The report's line on a player whose last territory has been captured: "Player 3 is now dead.".
std::string NowDeadText(int player);

/// The report's line when the current player has given up their own last territory.
inline constexpr const char* KilledYourselfText =
    "You have killed yourself... you have no troops or tanks remaining.";

/// Ends the game with player index `player` as winner and announces it. `computerReport` is the report of the
/// winner's turn when a computer has won in it, and null when the win is found at the change of turn.
void DeclareWinner(GameState& game, Screens& screens, int player, const Report* computerReport);

/// Announces the end of the game without a winner, after an order that has eliminated the last player.
void NobodyWins(Screens& screens);

}  // namespace vorlund
