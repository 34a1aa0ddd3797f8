// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/strike.h"
#include "actions/transport.h"
#include "actions/upgrade.h"
#include "savegame/format.h"
#include "tests/engine/games.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

/// Random hands at the board of one game: they open dialogs, give orders, close dialogs and reports and end
/// turns, in any order that the screens allow. The same seed plays the same game.
class Hands : public Table {
public:
    explicit Hands(std::uint32_t seed) : Table(seed ^ 0x9E3779B9U), mind_(seed) {
        Seen.SetCommands(CommandSet::None());
        if (OneIn(3, mind_)) {
            Game = RandomPosition(mind_);
            CloseDialog();
        } else {
            Game = RandomNewGame(mind_, Chance);
            Turn.OpenFirstTurn();
        }
    }

    /// Does one thing; what it has broken, if anything.
    std::string Step() {
        const GameState before = Game;
        Seen.Calls.clear();
        ordered_ = false;
        Act();
        if (!ordered_ && Game != before) {
            return "something has changed that had not been ordered";
        }
        if (!dialog_ && !Seen.ReportVisible && !Game.GameOver && Seen.Commands == CommandSet::None()) {
            return "nothing is left to do, and the game is not over";
        }
        return BrokenRecords(Game) + BrokenCommands(Game, *Seen.Commands) +
               (dialog_ == Command::Save ? BrokenSaving(Game) : "");
    }

private:
    void Act() {
        if (Game.GameOver || (Seen.ReportVisible && OneIn(4, mind_))) {
            ordered_ = Turn.ReportClosed();
            if (!ordered_) {
                Seen.CloseReport();
            }
        } else if (dialog_ && !OneIn(5, mind_)) {
            OneIn(5, mind_) ? CloseDialog() : Order();
        } else if (Seen.Commands->Has(Command::EndTurn) && OneIn(6, mind_)) {
            ordered_ = true;
            Turn.EndTurn();
        } else if (const Command command = Any(AllCommands, mind_);
                   Seen.Commands->Has(command) && command != Command::EndTurn) {
            Seen.SetCommands(CommandSet::None());
            dialog_ = command;
        }
        if (Seen.Calls.find("CloseDialogs") != std::string::npos) {
            dialog_.reset();
        }
    }

    void CloseDialog() {
        dialog_.reset();
        Seen.SetCommands(AvailableCommands(Game));
    }

    void Order() {
        const Route route = RandomRoute(Game, mind_);
        const auto upTo = [this](int limit) { return QuantityEntry(limit, mind_); };
        const int money = Game.Current().Money;
        const std::string troops = upTo(*dialog_ == Command::Buy ? money / 20 : route.Force.Troops);
        const std::string tanks = upTo(*dialog_ == Command::Buy ? money / 80 : route.Force.Tanks);
        if (*dialog_ == Command::Buy) {
            Settle(Buy(Game, {route.From, troops, tanks, upTo(money)}));
        } else if (*dialog_ == Command::Sell) {
            Settle(Sell(Game, {route.From, troops, tanks, upTo(Game.Current().Oil)}));
        } else if (*dialog_ == Command::Transport) {
            Settle(Tran(Game, {route.From, route.To, troops, tanks}));
        } else if (*dialog_ == Command::Attack && OneIn(4, mind_)) {
            Settle(Strike(Game, route.To));
        } else if (*dialog_ == Command::Attack) {
            Settle(Attck(Game, Chance, {route.From, route.To, troops, tanks}));
        } else if (*dialog_ == Command::Upgrade && OneIn(2, mind_)) {
            Settle((OneIn(2, mind_) ? Fact : Def)(Game, route.From));
        } else if (*dialog_ == Command::Upgrade) {
            Settle(RaiseLevel(Game, static_cast<Track>(mind_.Draw(3))));
        } else if (*dialog_ == Command::Save) {
            ordered_ = true;
            Game = std::get<GameState>(ReadGame(FreshGame(), WriteGame(Game)));
        }
    }

    template <class Outcome>
    void Settle(const Outcome& outcome) {
        ordered_ = outcome.index() != 0 && !std::holds_alternative<Refusal>(outcome);
        if (ordered_ && *dialog_ != Command::Transport && *dialog_ != Command::Upgrade) {
            Seen.ShowReport({}, std::nullopt);
            CloseDialog();
        }
        if (ordered_ && Game.DeadPlayers == Game.NumPlayers) {
            NobodyWins(Seen);
        }
    }

    SeededRandom mind_;
    std::optional<Command> dialog_;
    bool ordered_ = false;
};

}  // namespace
}  // namespace vorlund

/// Plays VORLUND_GAMES random games (2,000 if unset), the first with the seed VORLUND_SEED (1), up to the
/// first that breaks.
int main() {
    const char* const seedGiven = std::getenv("VORLUND_SEED");
    const char* const gamesGiven = std::getenv("VORLUND_GAMES");
    const int first = seedGiven != nullptr ? std::atoi(seedGiven) : 1;
    const int games = gamesGiven != nullptr ? std::atoi(gamesGiven) : 2000;
    int turns = 0;
    for (int seed = first; seed < first + games; ++seed) {
        vorlund::Hands hands(static_cast<std::uint32_t>(seed));
        for (int step = 0; step < 1500; ++step) {
            const int player = hands.Game.CurrentPlayer;
            if (const std::string broken = hands.Step(); !broken.empty()) {
                std::printf("BROKEN: %s in step %d with VORLUND_SEED=%d\n", broken.c_str(), step, seed);
                return 1;
            }
            turns += player != hands.Game.CurrentPlayer ? 1 : 0;
        }
    }
    std::printf("%d games, %d turns\n", games, turns);
}
