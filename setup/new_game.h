// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// Sets the number of players of a new game, MinPlayers to MaxPlayers.
void SetNumPlayers(GameState& game, int players);

/// The names are refused. `Prompt` says why; the screen beeps `Beeps` times.
struct NamesRefusal {
    std::string Prompt;
    int Beeps = 0;

    bool operator==(const NamesRefusal&) const = default;
};

/// Sets the names of a new game's players, UTF-8 as typed, one for each of the game's `NumPlayers`.
/// "computer" and "comp" in any mix of case make a computer player, which is named after its number. Refuses,
/// without a change, empty names and then names that a saved game cannot keep: one beep for each such row,
/// and the prompt names the last. Refuses names without a human, too, but then names and flags have been set.
/// Nothing on success.
std::optional<NamesRefusal> EnterNames(GameState& game, std::span<const std::string> names);

}  // namespace vorlund
