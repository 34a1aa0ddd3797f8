// SPDX-License-Identifier: MIT
#include "turn/commands.h"

namespace vorlund {

CommandSet CommandSet::All() {
    CommandSet all;
    all.bits_.set();
    return all;
}

CommandSet CommandSet::With(Command command) const {
    CommandSet result = *this;
    result.bits_.set(static_cast<std::size_t>(command));
    return result;
}

CommandSet CommandSet::Without(Command command) const {
    CommandSet result = *this;
    result.bits_.reset(static_cast<std::size_t>(command));
    return result;
}

WhyNot WhyUnavailable(const GameState& game, Command command) {
    if (game.GameOver || game.DeadPlayers == game.NumPlayers) {
        return "The game is over.";
    }
    const Player& player = game.Current();
    if (player.IsDead && command != Command::EndTurn) {
        return "You are dead and can only end your turn.";
    }
    if (player.FirstTurn && command == Command::Attack) {
        return "Nobody attacks in their first turn.";
    }
    return std::nullopt;
}

CommandSet AvailableCommands(const GameState& game) {
    CommandSet available;
    for (const Command command : AllCommands) {
        if (!WhyUnavailable(game, command)) {
            available = available.With(command);
        }
    }
    return available;
}

}  // namespace vorlund
