#pragma once

#include <optional>
#include <string>

#include "state/game_state.h"
#include "turn/commands.h"

namespace vorlund {

// What must hold between any two actions. Each answers with a complaint, or with nothing when all is well.

/// The records agree, and the totals of every living human are the sums over that player's territories.
std::optional<std::string> BrokenRecords(const GameState& game);

/// `given` is one of the exact sets: all eight commands with Attack only after the first turn, End Turn alone
/// for the dead, or none.
std::optional<std::string> BrokenCommands(const GameState& game, CommandSet given);

/// A living human's game, saved, reads back as it was and gives the same bytes again.
std::optional<std::string> BrokenSaving(const GameState& game);

}  // namespace vorlund
