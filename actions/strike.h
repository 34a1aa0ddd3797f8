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

/// Drops the current player's bomb on territory index `target`, which another player holds: half of its
/// troops and a quarter of its tanks, both rounded down, come off the territory and its owner's total.
/// They are the result.
Units DropBomb(GameState& game, int target);

/// "You have a nuclear bomb to use." or that there is none, for the current player.
std::string BombText(const GameState& game);

/// Why the strike command is not enabled for the current player, who holds no bomb.
WhyNot WhyNoStrike(const GameState& game);

/// What the current player's bomb can be dropped on: whatever another player holds; nothing without a bomb.
TerritorySet StrikeTargets(const GameState& game);

/// The current player's strike upon the territory whose number is typed in `target`. A beep when there is
/// WhyNoStrike, a refusal for an entry that names no territory of another player, otherwise the report of the
/// losses.
std::variant<Beep, Refusal, Report> Strike(GameState& game, std::string_view target);

}  // namespace vorlund
