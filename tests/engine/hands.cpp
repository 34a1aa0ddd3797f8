#include "tests/engine/hands.h"

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/strike.h"
#include "tests/engine/checks.h"
#include "tests/engine/entries.h"
#include "tests/engine/games.h"
#include "tests/engine/said.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr int LeastDrawsOfAComputer = 4;  // bomb, two directions, tank bonus

/// `complaint` unless all is well.
std::optional<std::string> Unless(bool well, const char* complaint) {
    return well ? std::nullopt : std::optional<std::string>(complaint);
}

using Outcome = std::variant<Beep, Nothing, Refusal, Moved, Purchase, Report, NoSurvivor>;

template <typename Narrower>
Outcome Any(const Narrower& outcome) {
    return std::visit([](const auto& one) { return Outcome(one); }, outcome);
}

Outcome Trade(bool buys, GameState& game, Random& mind, std::vector<std::string>& typed) {
    const RouteEntries route = RandomRoute(game, mind);
    const int money = std::max<int>(game.Current().Money, 0);
    typed = {route.From, QuantityEntry(buys ? money / 20 : route.Troops, mind),
             QuantityEntry(buys ? money / 80 : route.Tanks, mind),
             QuantityEntry(buys ? money : game.Current().Oil, mind)};
    const TradeEntries entries{typed[0], typed[1], typed[2], typed[3]};
    return buys ? Any(Buy(game, entries)) : Any(Sell(game, entries));
}

Outcome Go(bool attacks, Table& table, Random& mind, std::vector<std::string>& typed) {
    GameState& game = table.Game;
    const RouteEntries route = RandomRoute(game, mind);
    typed = {route.From, route.To, QuantityEntry(route.Troops, mind), QuantityEntry(route.Tanks, mind)};
    if (!attacks) {
        return Any(Tran(game, CanMove(game), {typed[0], typed[1], typed[2], typed[3]}));
    }
    if (mind.Draw(4) == 0) {
        return Any(Strike(game, game.Current().HasNuke, typed[1]));
    }
    return Any(Attck(game, table.Chance, CanAttack(game), {typed[0], typed[1], typed[2], typed[3]}));
}

Outcome Upgrade(GameState& game, Random& mind, std::vector<std::string>& typed) {
    const int choice = mind.Draw(5);
    if (choice < 3) {
        return Any(RaiseLevel(game, static_cast<Track>(choice)));
    }
    typed = {TerritoryEntry(game, mind)};
    return Any(choice == 3 ? Fact(game, typed[0]) : Def(game, typed[0]));
}

/// Gives an order in the dialog with whatever entries come to mind.
Outcome Order(Command dialog, Table& table, Random& mind, std::vector<std::string>& typed) {
    if (dialog == Command::Buy || dialog == Command::Sell) {
        return Trade(dialog == Command::Buy, table.Game, mind, typed);
    }
    if (dialog == Command::Transport || dialog == Command::Attack) {
        return Go(dialog == Command::Attack, table, mind, typed);
    }
    return dialog == Command::Upgrade ? Upgrade(table.Game, mind, typed) : Nothing{};
}

}  // namespace

Hands::Hands(std::uint32_t seed)
    : mind_(seed), table_(seed ^ 0x9E3779B9U), restlessness_(mind_.Draw(3) == 0 ? 2 : 12) {
    if (mind_.Draw(3) == 0) {
        table_.Game = RandomPosition(mind_);
        table_.Seen.SetCommands(AvailableCommands(table_.Game));
    } else {
        table_.Game = RandomNewGame(mind_, table_.Chance);
        table_.Turn.OpenFirstTurn();
    }
}

std::optional<std::string> Hands::Step() {
    table_.Seen.Calls.clear();
    Complaint complaint;
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
            table_.Seen.SetCommands(CommandSet::None());
            dialog_ = command;
        }
    }
    return complaint ? complaint : BrokenBoard();
}

void Hands::CloseDialog() {
    dialog_.reset();
    table_.Seen.SetCommands(AvailableCommands(table_.Game));
}

std::optional<std::string> Hands::Act() {
    if (mind_.Draw(5) == 0) {
        CloseDialog();
        return std::nullopt;
    }
    if (*dialog_ == Command::Save) {
        return BrokenSaving(table_.Game);
    }
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    std::vector<std::string> typed;
    const Outcome outcome = Order(*dialog_, table_, mind_, typed);
    std::string step = "dialog " + std::to_string(static_cast<int>(*dialog_));
    for (const std::string& entry : typed) {
        step += " '" + entry + "'";
    }
    steps_.push_back(step + ": " + std::visit(Said{}, outcome));
    const bool mayDraw = *dialog_ == Command::Attack && std::holds_alternative<Report>(outcome);
    if (const auto* report = std::get_if<Report>(&outcome)) {
        table_.Seen.ShowReport(*report, std::nullopt);
        CloseDialog();
    } else if (std::holds_alternative<NoSurvivor>(outcome)) {
        NobodyWins(table_.Game, table_.Seen);
        CloseDialog();
    } else if (!std::holds_alternative<Moved>(outcome) && !std::holds_alternative<Purchase>(outcome) &&
               table_.Game != before) {
        return "a refused action has changed the game";
    }
    return Unless(mayDraw || table_.Chance.Draws == drawsBefore, "an action without chance has drawn");
}

std::optional<std::string> Hands::EndTurn() {
    steps_.push_back("player " + std::to_string(table_.Game.CurrentPlayer + 1) + " ends the turn");
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    table_.Turn.EndTurn();
    return BrokenHandOver(before, table_.Chance.Draws - drawsBefore);
}

std::optional<std::string> Hands::CloseReport() {
    steps_.emplace_back("close the report");
    const GameState before = table_.Game;
    const std::int64_t drawsBefore = table_.Chance.Draws;
    if (table_.Turn.ReportClosed()) {
        if (table_.Seen.Calls.find("CloseDialogs") != std::string::npos) {
            dialog_.reset();
        }
        return BrokenHandOver(before, table_.Chance.Draws - drawsBefore);
    }
    table_.Seen.CloseReport();
    return Unless(table_.Game == before, "closing a report has changed the game");
}

std::optional<std::string> Hands::AfterTheEnd() {
    dialog_.reset();
    const GameState before = table_.Game;
    const bool stays = table_.Turn.ReportClosed();
    table_.Seen.CloseReport();
    return Unless(!stays && table_.Game == before, "the game went on after its end");
}

std::optional<std::string> Hands::BrokenHandOver(const GameState& before, std::int64_t draws) const {
    const GameState& game = table_.Game;
    const Player& player = game.Current();
    if (Available() != CommandSet::None()) {
        return "commands are available before the report is closed";
    }
    if (game.GameOver) {
        const bool oneIsLeft = game.DeadPlayers == game.NumPlayers - 1 && !player.IsDead;
        return Unless(oneIsLeft && table_.Seen.Announcements.size() == 1 && table_.Seen.GameOverShown &&
                          table_.Seen.BoardTitle == "Vorlund - " + player.Name + " wins",
                      "the game ended wrongly");
    }
    if (!table_.Seen.ReportVisible || table_.Seen.Picture != game.CurrentPlayer) {
        return "the turn's report is not on screen";
    }
    if (before.CurrentPlayer == game.CurrentPlayer || player.IsComputer != game.ComputerTurnEnded) {
        return "the report belongs to the wrong player";
    }
    return Unless(player.IsComputer ? draws >= LeastDrawsOfAComputer : draws == 1,
                  "the turn has made the wrong draws");
}

std::optional<std::string> Hands::BrokenBoard() const {
    if (auto complaint = BrokenRecords(table_.Game)) {
        return complaint;
    }
    if (auto complaint = BrokenCommands(table_.Game, Available())) {
        return complaint;
    }
    return Unless(
        table_.Game.GameOver || dialog_ || table_.Seen.ReportVisible || Available() != CommandSet::None(),
        "nothing is left to do, and the game is not over");
}

}  // namespace vorlund
