// SPDX-License-Identifier: MIT
#include "turn/turn_cycle.h"

#include <cassert>
#include <utility>

#include "state/consistent.h"
#include "turn/upkeep.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

bool OneIsLeft(const GameState& game) {
    return game.DeadPlayers == game.NumPlayers - 1;
}

/// A current player who has just collapsed, leaving one player alive, is dead but must still end the turn,
/// which announces the winner: there the game is not over yet.
bool IsOver(const GameState& game) {
    return game.GameOver || (OneIsLeft(game) && !game.Current().IsDead);
}

}  // namespace

std::string TurnTitle(const GameState& game) {
    return "Vorlund - " + game.Current().Name + "'s turn";
}

bool HasTurn(const GameState& game, int player) {
    return player == game.CurrentPlayer && !game.GameOver && game.DeadPlayers < game.NumPlayers;
}

std::int16_t NextAlive(const GameState& game, int player) {
    int next = player;
    do {
        next = (next + 1) % game.NumPlayers;
    } while (next != player && game.PlayerAt(next).IsDead);
    return static_cast<std::int16_t>(next);
}

TurnCycle::TurnCycle(GameState& game, Random& random, Screens& screens, std::function<void()> computerTurn)
    : game_(game), random_(random), screens_(screens), computerTurn_(std::move(computerTurn)) {}

void TurnCycle::EndTurn() {
    screens_.CloseReport();
    PassTurn();
}

void TurnCycle::PassTurn() {
    screens_.CloseDialogs();
    random_.Reseed();
    game_.ComputerTurnEnded = false;
    screens_.SetCommands(CommandSet::None());
    game_.Current().FirstTurn = false;
    game_.CurrentPlayer = NextAlive(game_, game_.CurrentPlayer);
    if (OneIsLeft(game_)) {
        DeclareWinner(game_, screens_, game_.CurrentPlayer, nullptr);
        return;
    }
    BeginTurn();
    if (game_.Current().IsComputer) {
        computerTurn_();
    } else {
        RunUpkeepOfCurrentPlayer(true);
    }
    assert(Consistent(game_));
}

bool TurnCycle::ReportClosed() {
    if (IsOver(game_)) {
        return false;
    }
    if (!game_.Current().IsComputer && !game_.ComputerTurnEnded) {
        screens_.SetCommands(AvailableCommands(game_));
        return false;
    }
    const std::int16_t next = NextAlive(game_, game_.CurrentPlayer);
    if (game_.Current().IsComputer && game_.PlayerAt(next).IsComputer) {
        // By the rules this is no change of turn: BeginTurn is not called. Its moves and attacks are part of
        // the saved game, although no computer player uses them.
        game_.CurrentPlayer = next;
        computerTurn_();
    } else {
        PassTurn();
    }
    return true;
}

void TurnCycle::OpenFirstTurn() {
    BeginTurn();
    random_.Reseed();
    RunUpkeepOfCurrentPlayer(false);
    assert(Consistent(game_));
}

void TurnCycle::BeginTurn() {
    Player& player = game_.Current();
    player.AttacksLeft = AttacksPerTurn;
    player.MovesLeft = MovesPerTurn;
    screens_.SetBoardTitle(TurnTitle(game_));
}

void TurnCycle::RunUpkeepOfCurrentPlayer(bool withPicture) {
    const int player = game_.CurrentPlayer;
    const Report report = RunUpkeep(game_, random_, player);
    screens_.RefreshMap();
    screens_.ShowReport(report, withPicture ? std::optional<int>(player) : std::nullopt);
}

}  // namespace vorlund
