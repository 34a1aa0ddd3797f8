#include "turn/victory.h"

#include <algorithm>

namespace vorlund {

bool CheckDead(GameState& game, int player) {
    Player& candidate = game.PlayerAt(player);
    if (std::find(candidate.Owns.begin(), candidate.Owns.end(), true) != candidate.Owns.end()) {
        return false;
    }
    candidate.IsDead = true;
    ++game.DeadPlayers;
    return true;
}

std::string NowDeadText(int player) {
    return "Player " + std::to_string(player + 1) + " is now dead.";
}

void DeclareWinner(GameState& game, Screens& screens, int player, const Report* computerReport) {
    const std::string& name = game.PlayerAt(player).Name;
    screens.ShowGameOver();
    game.GameOver = true;
    if (computerReport != nullptr) {
        screens.RefreshMap();
        screens.ShowReport(*computerReport, player);
    }
    screens.SetBoardTitle("Vorlund - " + name + " wins");
    screens.Announce("Player " + std::to_string(player + 1) + ", " + name +
                     (computerReport != nullptr ? ", wins the game!" : ", you win the game!"));
}

void NobodyWins(GameState& game, Screens& screens) {
    screens.RefreshMap();
    game.GameOver = true;
    screens.SetCommands(CommandSet::None());
    screens.Announce("All players are dead, no one wins...");
    screens.CloseDialogs();
}

}  // namespace vorlund
