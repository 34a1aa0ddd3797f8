#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "computer/computer_turn.h"
#include "state/consistent.h"
#include "tests/rules/recorder.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"
#include "turn/turn_cycle.h"
#include "turn/upkeep.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

const float NoResearch = For(0, 13);
using Setting = void (*)(GameState&);

/// A game with its screens and its chance, played from a script.
struct Play {
    Play(GameState start, std::vector<float> script) : Game(std::move(start)), Chance(std::move(script)) {}

    GameState Game;
    ScriptedRandom Chance;
    Recorder Seen;
    TurnCycle Turn{Game, Chance, Seen, [this] { ComputerTurn(Game, Chance, Seen); }};
};

/// Anna holds number 2, which brings in 39 dollars, Ben number 42; both stand empty.
GameState OneTerritoryEach() {
    GameState game = NewGame(2);
    Give(game, 1, 0, 0);
    Give(game, 41, 1, 0);
    return game;
}

std::string Figures(int upkeep, int barrels, int income) {
    return "Upkeep for Troops and Factories: $" + std::to_string(upkeep) +
           "\rUpkeep for Tanks: " + std::to_string(barrels) +
           " barrels\r\rMoney collected from territories: $" + std::to_string(income) +
           "\rRemaining money after expenses: $" + std::to_string(income - upkeep) + "\r\r";
}

TEST(Upkeep, BooksAndReports) {
    struct Row {
        const char* what;
        std::int16_t money;
        std::int16_t debtTurns;
        std::string changes;
        std::string body;
        Setting setup = [](GameState&) {};
        float research = NoResearch;
    };
    const std::string found = "Your nuclear development team has researched a nuclear bomb.\r\r";
    const std::string debt = "Your economy is in debt- economic unrest spreads through your land.\r";
    const std::string collapse = "Your territories collapse due to prolonged periods of lack of funds.";
    const std::vector<Row> rows{
        {"four territories, an oil field and Economy level 2; a share of a dollar is cut off", 100, 0,
         "Anna Money 265 Oil 12", Figures(22, 3, 187),
         [](GameState& g) {
             Give(g, 0, 0, 10, 3), Give(g, 2, 0, 0), Give(g, 3, 0, 0);
             GiveFactory(g, 0), GiveFactory(g, 1);
             g.Players[0].EconomyLevel = 2;
         }},
        {"missing oil is settled in money, the debt is counted", -34, 0, "Anna Money -2 DebtTurns 1",
         Figures(0, 7, 39) + debt, [](GameState& g) { Give(g, 1, 0, 0, 7); }},
        {"two turns in debt do not yet matter when money is there", -39, 2, "Anna Money 0",
         Figures(0, 0, 39)},
        {"the third turn in debt takes everything but the totals", -31, 2,
         "2 nobody 0/0; Anna Money -1 DebtTurns 3 IsDead 1", Figures(9, 0, 39) + debt + collapse,
         [](GameState& g) {
             Give(g, 1, 0, 4, 0), GiveFactory(g, 1);
             g.Territories[1].HasDefense = true;
         }},
        {"sums stop at the upper end of the fields", 32760, 0, "Anna Money 32767 Oil 32767",
         Figures(0, 0, 78), [](GameState& g) { Give(g, 0, 0, 0), g.Players[0].Oil = 32760; }},
        {"and at the lower end", -32000, 0, "Anna Money -32768 DebtTurns 1", Figures(32767, 0, 39) + debt,
         [](GameState& g) { g.Players[0].Troops = 32767; }},
        {"research finds a bomb", 0, 0, "Anna Money 39 HasNuke 1", Figures(0, 0, 39) + found,
         [](GameState&) {}, For(2, 13)},
        {"more often at Nuclear level 3", 0, 0, "Anna Money 39 HasNuke 1", Figures(0, 0, 39) + found,
         [](GameState& g) { g.Players[0].NuclearLevel = 3; }, For(2, 3)},
        {"but never a second one", 0, 0, "Anna Money 39", Figures(0, 0, 39),
         [](GameState& g) { g.Players[0].HasNuke = true; }, For(2, 13)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        GameState game = OneTerritoryEach();
        game.Players[0].Money = row.money;
        game.Players[0].DebtTurns = row.debtTurns;
        row.setup(game);
        const GameState before = game;
        ScriptedRandom random({row.research});
        EXPECT_EQ(RunUpkeep(game, random, 0),
                  (Report{"Vorlund - Upkeep", "Upkeep status for Player 1, Anna.", row.body}));
        EXPECT_EQ(Changes(before, game), row.changes);
        EXPECT_TRUE(Consistent(game));
    }
}

TEST(AvailableCommands, AreOneOfTheExactSets) {
    struct Row {
        const char* what;
        Setting setup;
        CommandSet expected;
        std::string whyNoAttack;
    };
    const std::vector<Row> rows{
        {"a later turn", [](GameState&) {}, CommandSet::All(), ""},
        {"the first turn", [](GameState& g) { g.Players[0].FirstTurn = true; },
         CommandSet::All().Without(Command::Attack), "Nobody attacks in their first turn."},
        {"dead", [](GameState& g) { Bury(g, 0); }, CommandSet::Only(Command::EndTurn),
         "You are dead and can only end your turn."},
        {"nobody lives", [](GameState& g) { Bury(g, 0), Bury(g, 1); }, CommandSet::None(),
         "The game is over."},
        {"the game is over", [](GameState& g) { g.GameOver = true; }, CommandSet::None(),
         "The game is over."},
    };
    for (const Row& row : rows) {
        GameState game = OneTerritoryEach();
        row.setup(game);
        EXPECT_EQ(AvailableCommands(game), row.expected) << row.what;
        EXPECT_EQ(WhyUnavailable(game, Command::Attack), row.whyNoAttack) << row.what;
    }
}

TEST(EndTurn, PassesToTheNextLivingPlayer) {
    struct Row {
        const char* what;
        int players;
        int from;
        int dead;
        int to;
    };
    for (const Row& row :
         {Row{"past a dead player", 3, 0, 1, 2}, Row{"round the end", 3, 2, 1, 0},
          Row{"past the dead at the end", 4, 2, 3, 0}, Row{"from a dead player", 5, 3, 3, 4}}) {
        SCOPED_TRACE(row.what);
        GameState game = NewGame(row.players);
        Bury(game, row.dead);
        for (int p = 0; p < row.players; ++p) {
            if (p != row.dead) {
                Give(game, 5 * p, p, 0);
            }
        }
        game.CurrentPlayer = static_cast<std::int16_t>(row.from);
        Play play(game, {NoResearch});
        play.Turn.EndTurn();
        EXPECT_EQ(play.Game.CurrentPlayer, row.to);
        EXPECT_EQ(play.Seen.Picture, row.to);
        EXPECT_EQ(play.Chance.Reseedings, 1);
    }
}

TEST(EndTurn, GivesTheNextHumanEverythingButTheCommands) {
    GameState game = OneTerritoryEach();
    game.Players[0].FirstTurn = game.Players[1].FirstTurn = true;
    game.Players[1].MovesLeft = 0;
    game.Players[1].AttacksLeft = 1;
    game.ComputerTurnEnded = true;
    Play play(game, {NoResearch});
    play.Turn.EndTurn();
    EXPECT_EQ(Changes(game, play.Game), "Anna FirstTurn 0; Ben Money 39 MovesLeft 2 AttacksLeft 2");
    EXPECT_FALSE(play.Game.ComputerTurnEnded);
    EXPECT_EQ(play.Seen.BoardTitle, "Vorlund - Ben's turn");
    EXPECT_EQ(play.Seen.Calls, " CloseReport CloseDialogs SetCommands SetBoardTitle RefreshMap ShowReport");
    EXPECT_EQ(play.Seen.Commands, CommandSet::None());
    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_EQ(play.Seen.Commands, CommandSet::All().Without(Command::Attack));

    Play first(game, {NoResearch});
    first.Game.Players[0].MovesLeft = 0;
    first.Turn.OpenFirstTurn();
    EXPECT_EQ(Changes(game, first.Game), "Anna Money 39");
    EXPECT_EQ(first.Seen.Shown.Headline, "Upkeep status for Player 1, Anna.");
    EXPECT_EQ(first.Seen.Picture, std::nullopt);
    EXPECT_EQ(first.Seen.BoardTitle, "Vorlund - Anna's turn");
}

TEST(EndTurn, AnnouncesTheLastOneAliveWhoeverItIs) {
    for (const bool isComputer : {false, true}) {
        GameState game = NewGame(3);
        Give(game, 7, 2, 1);
        Bury(game, 0);
        Bury(game, 1);
        game.Players[2].IsComputer = isComputer;
        Play play(game, {});
        play.Turn.EndTurn();
        EXPECT_TRUE(play.Game.GameOver);
        EXPECT_EQ(play.Seen.Announcements, std::vector<std::string>{"Player 3, Cleo, you win the game!"});
        EXPECT_EQ(play.Seen.BoardTitle, "Vorlund - Cleo wins");
        EXPECT_EQ(play.Seen.Calls,
                  " CloseReport CloseDialogs SetCommands ShowGameOver SetBoardTitle Announce");
        EXPECT_FALSE(play.Turn.ReportClosed());
        EXPECT_EQ(play.Seen.Commands, CommandSet::None());
    }
}

TEST(EndTurn, ComesBackWhenNobodyLives) {
    GameState game = NewGame(2);
    Bury(game, 0);
    Bury(game, 1);
    Play play(game, {NoResearch});
    NobodyWins(play.Game, play.Seen);
    EXPECT_TRUE(play.Game.GameOver);
    EXPECT_EQ(play.Seen.Announcements, std::vector<std::string>{"All players are dead, no one wins..."});
    EXPECT_EQ(play.Seen.Calls, " RefreshMap SetCommands Announce CloseDialogs");
    play.Turn.EndTurn();
    EXPECT_EQ(play.Seen.Commands, CommandSet::None());
}

TEST(ReportClosed, GivesTheLastButOneWhoCollapsedTheEndOfTheTurn) {
    GameState game = OneTerritoryEach();
    game.Players[1].DebtTurns = 2;
    game.Players[1].Money = -100;
    Play play(game, {NoResearch});
    play.Turn.EndTurn();
    ASSERT_TRUE(play.Game.Players[1].IsDead);
    EXPECT_TRUE(play.Seen.Announcements.empty());
    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_EQ(play.Seen.Commands, CommandSet::Only(Command::EndTurn));
    play.Turn.EndTurn();
    EXPECT_EQ(play.Seen.Announcements, std::vector<std::string>{"Player 1, Anna, you win the game!"});

    // The one who has beaten the last opponent keeps the commands as they are.
    play.Game.GameOver = false;
    play.Seen.Calls.clear();
    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_EQ(play.Seen.Calls, "");
}

TEST(ReportClosed, HandsFromComputerToComputerAndOnToTheNextHuman) {
    GameState game = NewGame(5);
    Bury(game, 2);
    for (const int p : {0, 1, 3, 4}) {
        Give(game, 10 * p, p, 1);
        game.PlayerAt(p).IsComputer = p == 1 || p == 3;
    }
    game.Players[3].AttacksLeft = 0;
    Play play(game, {NoResearch});
    TurnCycle turn(play.Game, play.Chance, play.Seen, [&] {
        play.Game.ComputerTurnEnded = true;
        play.Seen.ShowReport({"the turn of", play.Game.Current().Name, ""}, play.Game.CurrentPlayer);
    });
    turn.EndTurn();
    EXPECT_EQ(play.Seen.Shown.Headline, "Ben");
    EXPECT_EQ(play.Seen.BoardTitle, "Vorlund - Ben's turn");

    play.Seen.Calls.clear();
    EXPECT_TRUE(turn.ReportClosed());
    EXPECT_EQ(play.Seen.Shown.Headline, "Dora");
    EXPECT_EQ(play.Game.Players[3].AttacksLeft, 0) << "a computer after a computer gets none";
    EXPECT_EQ(play.Seen.Calls, " HideReport ShowReport");

    play.Seen.Calls.clear();
    EXPECT_TRUE(turn.ReportClosed());
    EXPECT_EQ(play.Seen.Shown.Headline, "Upkeep status for Player 5, Emil.");
    EXPECT_EQ(play.Seen.Calls, " CloseDialogs SetCommands SetBoardTitle RefreshMap ShowReport");
    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_EQ(play.Seen.Commands, CommandSet::All());
}

}  // namespace
}  // namespace vorlund
