#include "tests/engine/hands.h"

#include <utility>
#include <vector>

#include "tests/engine/checks.h"
#include "tests/engine/games.h"

namespace vorlund {
namespace {

constexpr std::size_t StepsRemembered = 12;
constexpr int LeastDrawsOfAComputer = 4;  // bomb, two directions, tank bonus

}  // namespace

Hands::Hands(std::uint32_t seed)
    : mind_(seed), table_(seed ^ 0x9E3779B9U), restlessness_(mind_.Draw(3) == 0 ? 2 : 12) {
    if (mind_.Draw(3) == 0) {
        table_.Game = RandomPosition(mind_);
        table_.Seen.SetCommands(AvailableCommands(table_.Game));
        Remember("a position");
    } else {
        table_.Game = RandomNewGame(mind_, table_.Chance);
        table_.Turn.OpenFirstTurn();
        Remember("a new game");
    }
}

std::optional<std::string> Hands::Step() {
    table_.Seen.Calls.clear();
    std::optional<std::string> complaint;
    if (table_.Game.GameOver) {
        complaint = AfterTheEnd();
    } else if (table_.Seen.ReportVisible && mind_.Draw(4) == 0) {
        complaint = CloseReport();
    } else if (dialog_) {
        complaint = Act();
    } else if (Available().Has(Command::EndTurn) && mind_.Draw(restlessness_) == 0) {
        complaint = EndTurn();
    } else {
        const Command command = AllCommands[static_cast<std::size_t>(mind_.Draw(NumCommands))];
        if (Available().Has(command) && command != Command::EndTurn) {
            Open(command);
        }
    }
    return complaint ? complaint : BrokenBoard();
}

void Hands::Remember(std::string step) {
    steps_.push_back(std::move(step));
    if (steps_.size() > StepsRemembered) {
        steps_.pop_front();
    }
}

void Hands::Open(Command command) {
    table_.Seen.SetCommands(CommandSet::None());
    dialog_ = command;
}

void Hands::CloseDialog() {
    dialog_.reset();
    table_.Seen.SetCommands(AvailableCommands(table_.Game));
}

std::optional<std::string> Hands::Act() {
    if (mind_.Draw(5) == 0) {
        Remember("close the dialog");
        CloseDialog();
        return std::nullopt;
    }
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    const Deed deed = ActInDialog(*dialog_, table_, mind_);
    Remember(deed.What + ": " + deed.Said);
    if (deed.Closes) {
        CloseDialog();
    }
    if (deed.Said.empty()) {
        return "nothing was said";
    }
    if (!deed.Done && table_.Game != before) {
        return "a refused action has changed the game";
    }
    if (table_.Chance.Draws != drawsBefore && !(deed.Done && deed.IsBattle)) {
        return "an action without chance has drawn";
    }
    if (deed.What == "save" && deed.Said != "saved") {
        return deed.Said;
    }
    return std::nullopt;
}

std::optional<std::string> Hands::EndTurn() {
    Remember("player " + std::to_string(table_.Game.CurrentPlayer + 1) + " ends the turn");
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    table_.Turn.EndTurn();
    return BrokenHandOver(before, table_.Chance.Draws - drawsBefore);
}

std::optional<std::string> Hands::CloseReport() {
    Remember("close the report");
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    if (table_.Turn.ReportClosed()) {
        if (table_.Seen.Calls.find("CloseDialogs") != std::string::npos) {
            dialog_.reset();
        }
        return BrokenHandOver(before, table_.Chance.Draws - drawsBefore);
    }
    table_.Seen.CloseReport();
    return table_.Game == before ? std::nullopt
                                 : std::optional<std::string>("closing a report has changed the game");
}

std::optional<std::string> Hands::AfterTheEnd() {
    dialog_.reset();
    const GameState before = table_.Game;
    if (table_.Turn.ReportClosed() || table_.Game != before) {
        return "the game went on after its end";
    }
    table_.Seen.CloseReport();
    return std::nullopt;
}

std::optional<std::string> Hands::BrokenHandOver(const GameState& before, std::int64_t draws) const {
    if (Available() != CommandSet::None()) {
        return "commands are available before the report is closed";
    }
    const Player& player = table_.Game.Current();
    if (table_.Game.GameOver) {
        const bool right = table_.Game.DeadPlayers == table_.Game.NumPlayers - 1 && !player.IsDead &&
                           table_.Seen.Announcements.size() == 1 && table_.Seen.GameOverShown;
        return right ? std::nullopt : std::optional<std::string>("the game ended wrongly");
    }
    if (!table_.Seen.ReportVisible || table_.Seen.Picture != table_.Game.CurrentPlayer) {
        return "the turn's report is not on screen";
    }
    if (before.CurrentPlayer == table_.Game.CurrentPlayer) {
        return "the turn stays where it was";
    }
    if (player.IsComputer != table_.Game.ComputerTurnEnded) {
        return "the report belongs to the wrong kind of player";
    }
    const bool rightDraws = player.IsComputer ? draws >= LeastDrawsOfAComputer : draws == 1;
    return rightDraws ? std::nullopt : std::optional<std::string>("the turn has made the wrong draws");
}

std::optional<std::string> Hands::BrokenBoard() const {
    if (auto complaint = BrokenRecords(table_.Game)) {
        return complaint;
    }
    if (auto complaint = BrokenCommands(table_.Game, Available())) {
        return complaint;
    }
    const bool deadEnd =
        !table_.Game.GameOver && !dialog_ && !table_.Seen.ReportVisible && Available() == CommandSet::None();
    return deadEnd ? std::optional<std::string>("nothing is left to do, and the game is not over")
                   : std::nullopt;
}

}  // namespace vorlund
