// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// Says how many players take part in a new game, MinPlayers to MaxPlayers.
void SetNumPlayers(GameState& game, int players);

/// The names are not accepted. `Prompt` says why; the computer beeps `Beeps` times.
struct NamesRefusal {
    std::string Prompt;
    int Beeps = 0;

    bool operator==(const NamesRefusal&) const = default;
};

/// Enters the names of a new game's players, UTF-8 and exactly as typed, one for each of the game's
/// `NumPlayers`. "computer" and "comp" in any mix of case make computer players, named after their number.
/// Refused without a change: rows left empty, then names that a saved game could not give back; every such
/// row beeps and the last one is named. When no human is left that is refused too, but names and flags stay
/// written. Nothing when the game can go ahead, as a new one.
std::optional<NamesRefusal> EnterNames(GameState& game, std::span<const std::string> names);

}  // namespace vorlund
