// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// The first thing found in which the records of a game do not agree with each other.
struct Flaw {
    std::string What;             ///< a sentence in the player's words
    const void* Field = nullptr;  ///< the field at fault, in the game that was examined
};

/// Who may have the turn in a game that is examined.
enum class AtTurn {
    Anybody,      ///< computers in their turn, and the dead until they end theirs
    LivingHuman,  ///< as in a game that can be saved
};

/// What is wrong with a game under way; nothing when it is sound: two to five players, the current one among
/// them; ownership recorded alike in the territory and with every player; no count of units negative, and
/// nothing standing in a territory that nobody owns; levels 0 to 3; dead exactly those who own nothing, and
/// `DeadPlayers` their number. Totals are not looked at: those of computer players lag behind what they own,
/// those of the dead stay as they were.
std::optional<Flaw> FirstFlaw(const GameState& game, AtTurn atTurn = AtTurn::Anybody);

/// True when there is no flaw.
inline bool Consistent(const GameState& game) {
    return !FirstFlaw(game);
}

/// What a field must be that is out of its range: "a whole number from 0 to 3".
std::string RangeWords(int low, int high);

}  // namespace vorlund
