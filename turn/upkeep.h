#pragma once

#include "state/game_state.h"
#include "state/random.h"
#include "turn/report.h"

namespace vorlund {

/// The upkeep at the start of a human player's turn: charges $2 a troop, $1 a factory and a barrel a tank,
/// pays
/// $(4 x value + 15) a territory raised by a tenth per Economy level, gives 15 barrels an oil field, may
/// deliver a researched bomb (one draw over 13, 7, 5 or 3 by Nuclear level, made in any case), settles
/// missing oil at a dollar a barrel, and counts the turns in debt; the third one collapses the player's
/// empire. Sums are held to 16 bits. `player` is the index of a living human; the report says what happened.
Report RunUpkeep(GameState& game, Random& random, int player);

}  // namespace vorlund
