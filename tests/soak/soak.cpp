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

/// A game with random orders, as far as the board's commands are enabled. The same seed gives the same game.
class RandomGame : public RecordedGame {
public:
    explicit RandomGame(std::uint32_t seed) : RecordedGame(seed ^ 0x9E3779B9U), random_(seed) {
        if (OneIn(3, random_)) {
            Game = RandomPosition(random_);
            Seen.SetCommands(AvailableCommands(Game));
        } else {
            Game = RandomNewGame(random_, Chance);
            Turn.OpenFirstTurn();
        }
    }

    /// Closes the report or gives a random command; returns the invariant that this has broken, if any.
    std::string Step() {
        const GameState before = Game;
        const Command command = OneOf(AllCommands, random_);
        bool mayChange = false;
        Seen.Calls.clear();
        if (Game.GameOver || (Seen.ReportVisible && OneIn(4, random_))) {
            mayChange = Turn.ReportClosed();
            Seen.ReportVisible = mayChange;
        } else if (Seen.Commands->Has(command)) {
            mayChange = Run(command);
        }
        if (!mayChange && Game != before) {
            return "a refusal or a closed report has changed the game";
        }
        if (!Seen.ReportVisible && !Game.GameOver && Seen.Commands == CommandSet::None()) {
            return "no command is enabled, and the game is not over";
        }
        return BrokenRecords(Game) + BrokenCommands(Game, *Seen.Commands) +
               (Seen.Commands->Has(Command::Save) && OneIn(8, random_) ? BrokenSaving(Game) : "");
    }

private:
    /// False when the order is refused.
    bool Run(Command command) {
        const Route route = RandomRoute(Game, random_);
        const auto upTo = [this](int limit) { return QuantityEntry(limit, random_); };
        const int money = Game.Current().Money;
        const std::string troops = upTo(command == Command::Buy ? money / 20 : route.Force.Troops);
        const std::string tanks = upTo(command == Command::Buy ? money / 80 : route.Force.Tanks);
        switch (command) {
            case Command::Buy:
                return Carried(Buy(Game, {route.From, troops, tanks, upTo(money)}));
            case Command::Sell:
                return Carried(Sell(Game, {route.From, troops, tanks, upTo(Game.Current().Oil)}));
            case Command::Transport:
                return Carried(Tran(Game, {route.From, route.To, troops, tanks}));
            case Command::Attack:
                return OneIn(4, random_)
                           ? Carried(Strike(Game, route.To))
                           : Carried(Attck(Game, Chance, {route.From, route.To, troops, tanks}));
            case Command::Upgrade:
                return OneIn(2, random_) ? Carried((OneIn(2, random_) ? Fact : Def)(Game, route.From))
                                         : Carried(RaiseLevel(Game, static_cast<Track>(random_.Draw(3))));
            case Command::EndTurn:
                if (OneIn(4, random_)) {
                    Turn.EndTurn();
                }
                return true;
            case Command::Save:
                Game = std::get<GameState>(ReadGame(FreshGame(), WriteGame(Game)));
                return true;
            case Command::Status:
                break;
        }
        return false;
    }

    /// The first alternative of an outcome, and a refusal, mean that nothing was carried out.
    template <class Outcome>
    bool Carried(const Outcome& outcome) {
        if (outcome.index() == 0 || std::holds_alternative<Refusal>(outcome)) {
            return false;
        }
        Seen.SetCommands(AvailableCommands(Game));
        if (Game.DeadPlayers == Game.NumPlayers) {
            NobodyWins(Seen);
        }
        return true;
    }

    SeededRandom random_;
};

}  // namespace
}  // namespace vorlund

/// Plays VORLUND_GAMES random games (2,000 if unset) with seeds from VORLUND_SEED (1) on, until an invariant
/// is broken.
int main() {
    const char* const seedGiven = std::getenv("VORLUND_SEED");
    const char* const gamesGiven = std::getenv("VORLUND_GAMES");
    const int first = seedGiven != nullptr ? std::atoi(seedGiven) : 1;
    const int games = gamesGiven != nullptr ? std::atoi(gamesGiven) : 2000;
    int turns = 0;
    for (int seed = first; seed < first + games; ++seed) {
        vorlund::RandomGame game(static_cast<std::uint32_t>(seed));
        for (int step = 0; step < 1500; ++step) {
            const int player = game.Game.CurrentPlayer;
            if (const std::string broken = game.Step(); !broken.empty()) {
                std::printf("BROKEN: %s in step %d with VORLUND_SEED=%d\n", broken.c_str(), step, seed);
                return 1;
            }
            turns += player != game.Game.CurrentPlayer ? 1 : 0;
        }
    }
    std::printf("%d games, %d turns\n", games, turns);
}
