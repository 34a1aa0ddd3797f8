// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "actions/outcome.h"
#include "state/game_state.h"
#include "state/territory_set.h"
#include "turn/commands.h"
#include "turn/report.h"

namespace vorlund {

/// Drops the current player's bomb on territory index `target`, which another player owns, and returns the
/// losses: half of the troops and a quarter of the tanks, both rounded down. They are subtracted from the
/// territory and from its owner's total.
Units DropBomb(GameState& game, int target);

/// Whether the current player has a bomb: "You have a nuclear bomb to use.".
std::string BombText(const GameState& game);

/// Why the dialog's Launch Nuke command is not available: the current player has no bomb.
WhyNot WhyNoStrike(const GameState& game);

/// The territories that the current player's bomb can be dropped on: those of other players; none without a
/// bomb.
TerritorySet StrikeTargets(const GameState& game);

/// Carries out the current player's strike upon the territory whose number is typed in `target`. A beep when
/// WhyNoStrike has a reason, a refusal when `target` is not the number of another player's territory,
/// otherwise the report of the losses.
std::variant<Beep, Refusal, Report> Strike(GameState& game, std::string_view target);

}  // namespace vorlund
