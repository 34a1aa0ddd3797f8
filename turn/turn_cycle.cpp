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

// A player who was the last but one and has just collapsed is dead and still has to end the turn, which
// announces the winner; so the game is not over yet.
bool NothingMoreToDo(const GameState& game) {
    return game.GameOver || (OneIsLeft(game) && !game.Current().IsDead);
}

}  // namespace

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
    Advance();
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
    if (NothingMoreToDo(game_)) {
        return false;
    }
    if (!game_.Current().IsComputer) {
        if (game_.ComputerTurnEnded) {
            PassTurn();
            return true;
        }
        screens_.SetCommands(AvailableCommands(game_));
        return false;
    }
    const std::int16_t computer = game_.CurrentPlayer;
    Advance();
    if (game_.Current().IsComputer) {
        computerTurn_();
    } else {
        game_.CurrentPlayer = computer;
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

void TurnCycle::Advance() {
    for (int steps = 0; steps < game_.NumPlayers; ++steps) {
        const bool last = game_.CurrentPlayer > game_.NumPlayers - 2;
        game_.CurrentPlayer = last ? std::int16_t{0} : static_cast<std::int16_t>(game_.CurrentPlayer + 1);
        if (!game_.Current().IsDead) {
            return;
        }
    }
}

void TurnCycle::BeginTurn() {
    Player& player = game_.Current();
    player.AttacksLeft = AttacksPerTurn;
    player.MovesLeft = MovesPerTurn;
    screens_.SetBoardTitle("Vorlund - " + player.Name + "'s turn");
}

void TurnCycle::RunUpkeepOfCurrentPlayer(bool withPicture) {
    const int player = game_.CurrentPlayer;
    const Report report = RunUpkeep(game_, random_, player);
    screens_.RefreshMap();
    screens_.ShowReport(report, withPicture ? std::optional<int>(player) : std::nullopt);
}

}  // namespace vorlund
