// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bitset>
#include <optional>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// The commands of the board, in tab order.
enum class Command { Buy, Sell, Transport, Attack, Upgrade, Status, EndTurn, Save };

inline constexpr int NumCommands = 8;
inline constexpr std::array<Command, NumCommands> AllCommands{
    Command::Buy,     Command::Sell,   Command::Transport, Command::Attack,
    Command::Upgrade, Command::Status, Command::EndTurn,   Command::Save};

/// A set of board commands.
class CommandSet {
public:
    static CommandSet None() { return {}; }
    static CommandSet Only(Command command) { return CommandSet().With(command); }
    static CommandSet All();

    CommandSet With(Command command) const;
    CommandSet Without(Command command) const;
    bool Has(Command command) const { return bits_[static_cast<std::size_t>(command)]; }

    bool operator==(const CommandSet&) const = default;

private:
    std::bitset<NumCommands> bits_;
};

/// Why a command is not available, a sentence for the player; nothing when it is available. The commands of
/// dialogs have such functions beside their actions (WhyNoAttack, WhyNoMove, WhyNoStrike, WhyNoUpgrade).
using WhyNot = std::optional<std::string>;

/// Why the current player may not use `command`: the game is over or nobody is alive, the player is dead and
/// can only end the turn, or it is an attack in the first turn. While a dialog, a report or a computer's turn
/// is open, the screens disable all commands without asking this.
WhyNot WhyUnavailable(const GameState& game, Command command);

/// All commands that WhyUnavailable has no reason against.
CommandSet AvailableCommands(const GameState& game);

}  // namespace vorlund
