// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// A field of a game that is out of range or contradicts other fields.
struct Flaw {
    std::string What;             ///< a sentence for the player
    const void* Field = nullptr;  ///< the field at fault, in the game that was examined
};

/// Which current player FirstFlaw accepts.
enum class AtTurn {
    Anybody,      ///< also a computer player, and a dead player until the turn is ended
    LivingHuman,  ///< as in every game that can be saved
};

/// The first violated invariant of a game under way, or nothing. The invariants: 2 to 5 players, the current
/// one among them; territory and players agree on the owner; unit counts are not negative; a territory
/// without an owner is empty; levels are 0 to 3; exactly the players without a territory are dead, and
/// `DeadPlayers` is their number. Totals are not checked: a computer player's do not include the units it
/// creates, and a dead player's are kept.
std::optional<Flaw> FirstFlaw(const GameState& game, AtTurn atTurn = AtTurn::Anybody);

/// True when FirstFlaw finds nothing.
inline bool Consistent(const GameState& game) {
    return !FirstFlaw(game);
}

/// A range in the words of error messages: "a whole number from 0 to 3".
std::string RangeWords(int low, int high);

}  // namespace vorlund
