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

CommandSet AvailableCommands(const GameState& game) {
    if (game.GameOver || game.DeadPlayers == game.NumPlayers) {
        return CommandSet::None();
    }
    if (game.Current().IsDead) {
        return CommandSet::Only(Command::EndTurn);
    }
    return game.Current().FirstTurn ? CommandSet::All().Without(Command::Attack) : CommandSet::All();
}

std::string WhyUnavailable(const GameState& game, Command command) {
    if (AvailableCommands(game).Has(command)) {
        return {};
    }
    if (game.GameOver || game.DeadPlayers == game.NumPlayers) {
        return "The game is over.";
    }
    return game.Current().IsDead ? "You are dead and can only end your turn."
                                 : "Nobody attacks in their first turn.";
}

}  // namespace vorlund
