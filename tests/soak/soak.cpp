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
#include "tests/engine/table.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr int StepsPerGame = 1500;
constexpr int LeastDrawsOfAComputer = 4;  // bomb, two directions, tank bonus

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
        Chance.Draws = 0;
        may_ = May::ChangeNothing;
        Act();
        if ((may_ == May::ChangeNothing && Game != before) || (may_ < May::Draw && Chance.Draws != 0)) {
            return "something was changed or drawn that had not been ordered";
        }
        if (!dialog_ && !Seen.ReportVisible && !Game.GameOver && Seen.Commands == CommandSet::None()) {
            return "nothing is left to do, and the game is not over";
        }
        return (may_ == May::PassTheTurn ? BrokenHandOver(before) : "") + BrokenRecords(Game) +
               BrokenCommands(Game, *Seen.Commands) + (dialog_ == Command::Save ? BrokenSaving(Game) : "");
    }

private:
    enum class May { ChangeNothing, Change, Draw, PassTheTurn };

    void Act() {
        if (Game.GameOver || (Seen.ReportVisible && OneIn(4, mind_))) {
            may_ = Turn.ReportClosed() ? May::PassTheTurn : May::ChangeNothing;
            if (may_ == May::ChangeNothing) {
                Seen.CloseReport();
            }
        } else if (dialog_ && !OneIn(5, mind_)) {
            OneIn(5, mind_) ? CloseDialog() : Order();
        } else if (Seen.Commands->Has(Command::EndTurn) && OneIn(restlessness_, mind_)) {
            may_ = May::PassTheTurn;
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
        const std::string troops = upTo(*dialog_ == Command::Buy ? money / 20 : route.Troops);
        const std::string tanks = upTo(*dialog_ == Command::Buy ? money / 80 : route.Tanks);
        if (*dialog_ == Command::Buy) {
            Settle(Buy(Game, {route.From, troops, tanks, upTo(money)}));
        } else if (*dialog_ == Command::Sell) {
            Settle(Sell(Game, {route.From, troops, tanks, upTo(Game.Current().Oil)}));
        } else if (*dialog_ == Command::Transport) {
            Settle(Tran(Game, CanMove(Game), {route.From, route.To, troops, tanks}));
        } else if (*dialog_ == Command::Attack && OneIn(4, mind_)) {
            Settle(Strike(Game, Game.Current().HasNuke, route.To));
        } else if (*dialog_ == Command::Attack) {
            Settle(Attck(Game, Chance, CanAttack(Game), {route.From, route.To, troops, tanks}));
        } else if (*dialog_ == Command::Upgrade && OneIn(2, mind_)) {
            Settle((OneIn(2, mind_) ? Fact : Def)(Game, route.From));
        } else if (*dialog_ == Command::Upgrade) {
            Settle(RaiseLevel(Game, static_cast<Track>(mind_.Draw(3))));
        } else if (*dialog_ == Command::Save) {
            may_ = May::Change;
            Game = std::get<GameState>(ReadGame(FreshGame(), WriteGame(Game)));
        }
    }

    template <class Outcome>
    void Settle(const Outcome& outcome) {
        if (outcome.index() == 0 || std::holds_alternative<Refusal>(outcome)) {
            return;
        }
        may_ = *dialog_ == Command::Attack ? May::Draw : May::Change;
        if (*dialog_ != Command::Transport && *dialog_ != Command::Upgrade) {
            Seen.ShowReport({}, std::nullopt);
            CloseDialog();
        }
        if (Game.DeadPlayers == Game.NumPlayers) {
            NobodyWins(Game, Seen);
        }
    }

    std::string BrokenHandOver(const GameState& before) const {
        const Player& player = Game.Current();
        if (Game.GameOver) {
            const bool oneIsLeft = Game.DeadPlayers == Game.NumPlayers - 1 && !player.IsDead;
            const bool told = Seen.Announcements.size() == 1 && Seen.GameOverShown &&
                              Seen.BoardTitle == "Vorlund - " + player.Name + " wins";
            return oneIsLeft && told && !before.GameOver ? "" : "the game ended wrongly";
        }
        if (!Seen.ReportVisible || Seen.Picture != Game.CurrentPlayer || dialog_ ||
            Seen.Commands != CommandSet::None() || before.CurrentPlayer == Game.CurrentPlayer ||
            player.IsComputer != Game.ComputerTurnEnded) {
            return "what is on screen is not the report of the next player's turn alone";
        }
        const bool wellDrawn = player.IsComputer ? Chance.Draws >= LeastDrawsOfAComputer : Chance.Draws == 1;
        return wellDrawn ? "" : "the turn has made the wrong draws";
    }

    SeededRandom mind_;
    int restlessness_ = OneIn(3, mind_) ? 2 : 12;  ///< one in so many thoughts is of ending the turn
    std::optional<Command> dialog_;
    May may_ = May::ChangeNothing;
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
        for (int step = 0; step < vorlund::StepsPerGame; ++step) {
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
