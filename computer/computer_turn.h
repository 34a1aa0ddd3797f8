#pragma once

#include "state/game_state.h"
#include "state/random.h"
#include "turn/screens.h"

namespace vorlund {

/// Plays the whole turn of the current player, a living computer player: perhaps a free bomb, a factory if it
/// has none, expansion, reinforcement, its bomb and its attacks. Ends with the turn's report on screen,
/// bearing the player's picture, or with the announcement that this player has won. The units it creates are
/// not added to its totals.
void ComputerTurn(GameState& game, Random& random, Screens& screens);

}  // namespace vorlund
