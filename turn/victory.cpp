// SPDX-License-Identifier: MIT
#include "turn/victory.h"

#include "state/ownership.h"
#include "state/player_words.h"

namespace vorlund {

bool CheckDead(GameState& game, int player) {
    if (CountOwned(game, player) > 0) {
        return false;
    }
    game.PlayerAt(player).IsDead = true;
    ++game.DeadPlayers;
    return true;
}

bool HasWon(const GameState& game, int player) {
    return game.GameOver && !game.PlayerAt(player).IsDead;
}

std::string NowDeadText(int player) {
    return PlayerWords(player) + " is now dead.";
}

void DeclareWinner(GameState& game, Screens& screens, int player, const Report* computerReport) {
    const std::string& name = game.PlayerAt(player).Name;
    const std::string verdict = name + " wins";
    screens.ShowGameOver(verdict);
    game.GameOver = true;
    if (computerReport != nullptr) {
        screens.RefreshMap();
        screens.ShowReport(*computerReport, player);
    }
    screens.SetBoardTitle("Vorlund - " + verdict);
    screens.Announce(PlayerAndName(game, player) +
                     (computerReport != nullptr ? ", wins the game!" : ", you win the game!"));
}

void NobodyWins(Screens& screens) {
    screens.RefreshMap();
    screens.SetCommands(CommandSet::None());
    screens.Announce("All players are dead, no one wins...");
    screens.CloseDialogs();
}

}  // namespace vorlund
