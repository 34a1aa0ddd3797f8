#pragma once

#include <array>
#include <bitset>
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

/// The commands that the current player may use when no dialog, report or computer's turn stands in the way:
/// none once the game is over or nobody lives, End Turn alone for a dead player, and otherwise all, Attack
/// only after the player's first turn. This is the one place that decides it.
CommandSet AvailableCommands(const GameState& game);

/// Why AvailableCommands leaves `command` out, as a sentence for the player; empty when it does not.
std::string WhyUnavailable(const GameState& game, Command command);

}  // namespace vorlund
