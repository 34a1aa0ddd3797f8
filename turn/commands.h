// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bitset>
#include <optional>
#include <string>

#include "state/game_state.h"

namespace vorlund {

/// The commands of the board, in the order of their keys and tabs.
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

/// Why something cannot be done now, a sentence for the player; nothing when it can. What a command of a
/// dialog needs is said beside its action.
using WhyNot = std::optional<std::string>;

/// Why the current player may not use `command` when no dialog, report or computer's turn stands in the way:
/// the game is over or nobody lives, the player is dead and can only end the turn, or would attack in the
/// first turn. This is the one place that decides it.
WhyNot WhyUnavailable(const GameState& game, Command command);

/// All commands that are not unavailable.
CommandSet AvailableCommands(const GameState& game);

}  // namespace vorlund
