#pragma once

#include <string>
#include <vector>

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

/// Names for two to five players as somebody might type them: some mean computer players, some are refused.
std::vector<std::string> RandomNames(Random& hands);

/// The state as the title screen leaves it.
GameState FreshGame();

/// A new game with its names entered and every player settled, in which the starting player has the turn.
GameState RandomNewGame(Random& hands, Random& chance);

/// Some consistent position that a long game might reach, units and treasuries up to their limits included.
/// A living human has the turn.
GameState RandomPosition(Random& hands);

}  // namespace vorlund
