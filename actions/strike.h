#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "actions/outcome.h"
#include "state/game_state.h"
#include "turn/report.h"

namespace vorlund {

/// Drops the current player's bomb on territory index `target`, which another player holds: half of its
/// troops and a quarter of its tanks, both rounded down, come off the territory and its owner's total.
/// They are the result.
Units DropBomb(GameState& game, int target);

/// "You have a nuclear bomb to use." or that there is none, for the current player.
std::string BombText(const GameState& game);

/// The current player's strike upon the territory whose number is typed in `target`. The command is enabled
/// while the player holds a bomb. A beep when it is not, a refusal for an entry that names no territory of
/// another player, otherwise the report of the losses.
std::variant<Beep, Refusal, Report> Strike(GameState& game, bool strikeEnabled, std::string_view target);

}  // namespace vorlund
