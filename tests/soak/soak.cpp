// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include "actions/battle.h"
#include "actions/buy.h"
#include "actions/sell.h"
#include "actions/strike.h"
#include "actions/transport.h"
#include "actions/upgrade.h"
#include "tests/engine/games.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

/// A game with random orders. The same seed gives the same game.
class RandomGame : public RecordedGame {
public:
    explicit RandomGame(std::uint32_t seed) : RecordedGame(seed ^ 0x9E3779B9U), random_(seed) {
        Seen.SetCommands(CommandSet::None());
        if (OneIn(3, random_)) {
            Game = RandomPosition(random_);
            Seen.SetCommands(AvailableCommands(Game));
        } else {
            Game = RandomNewGame(random_, Chance);
            Turn.OpenFirstTurn();
        }
    }

    /// Closes the report, ends the turn or gives an order; returns the invariant that this has broken, if
    /// any.
    std::string Step() {
        const GameState before = Game;
        bool mayChange = false;
        Seen.Calls.clear();
        if (Game.GameOver || (Seen.ReportVisible && OneIn(4, random_))) {
            mayChange = Seen.ReportVisible = Turn.ReportClosed();
        } else if (Seen.Commands->Has(Command::EndTurn) && OneIn(20, random_)) {
            mayChange = true;
            Turn.EndTurn();
        } else if (Seen.Commands->Has(Command::Buy)) {
            mayChange = Order();
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
    bool Order() {
        const auto [from, to, force] = RandomRoute(Game, random_);
        const auto upTo = [this](int limit) { return QuantityEntry(limit, random_); };
        const int money = Game.Current().Money;
        const TradeEntries bought{from, upTo(money / 20), upTo(money / 80), upTo(money)};
        const TradeEntries sold{from, upTo(force.Troops), upTo(force.Tanks), upTo(Game.Current().Oil)};
        const OrderEntries sent{from, to, sold.Troops, sold.Tanks};
        switch (random_.Draw(9)) {
            case 0:
                return Carried(Buy(Game, bought));
            case 1:
                return Carried(Sell(Game, sold));
            case 2:
                return Carried(Tran(Game, sent));
            case 3:
                return Carried(Strike(Game, to));
            case 4:
                return Carried(Fact(Game, from));
            case 5:
                return Carried(Def(Game, from));
            case 6:
                return Carried(RaiseLevel(Game, static_cast<Track>(random_.Draw(3))));
            default:
                return Seen.Commands->Has(Command::Attack) && Carried(Attck(Game, Chance, sent));
        }
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
    const auto setting = [](const char* name, int unset) {
        const char* const value = std::getenv(name);
        return value != nullptr ? std::atoi(value) : unset;
    };
    const int first = setting("VORLUND_SEED", 1);
    const int games = setting("VORLUND_GAMES", 2000);
    for (int seed = first; seed < first + games; ++seed) {
        vorlund::RandomGame game(static_cast<std::uint32_t>(seed));
        for (int step = 0; step < 1500; ++step) {
            if (const std::string broken = game.Step(); !broken.empty()) {
                std::printf("BROKEN: %s in step %d with VORLUND_SEED=%d\n", broken.c_str(), step, seed);
                return 1;
            }
        }
    }
    std::printf("%d games\n", games);
}
