#pragma once

#include "state/game_state.h"

namespace vorlund {

/// True when the records of a game under way agree with each other: two to five players, the current one
/// among them; ownership recorded alike in the territory and with every player; no count of units negative,
/// and nothing standing in a territory that nobody owns; levels 0 to 3; `DeadPlayers` the number of the dead,
/// and dead exactly those who own nothing. Totals are not looked at: those of computer players lag behind
/// what they own, those of the dead stay as they were.
bool Consistent(const GameState& game);

}  // namespace vorlund
