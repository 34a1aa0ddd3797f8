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
const std::string ResearchLine = "Your nuclear development team has researched a nuclear bomb.\r\r";
const std::string DebtLine = "Your economy is in debt- economic unrest spreads through your land.\r";
const std::string CollapseLine = "Your territories collapse due to prolonged periods of lack of funds.";

CommandSet AllButAttack() {
    return CommandSet::All().Without(Command::Attack);
}

/// A game with its screens and its chance, played from a script.
struct Play {
    Play(GameState start, std::vector<float> script) : Game(std::move(start)), Chance(std::move(script)) {}

    GameState Game;
    ScriptedRandom Chance;
    Recorder Seen;
    TurnCycle Turn{Game, Chance, Seen, [this] { ComputerTurn(Game, Chance, Seen); }};
};

GameState TwoWithOneTerritoryEach() {
    GameState game = NewGame(2);
    Give(game, 0, 0, 0);
    Give(game, 41, 1, 0);
    return game;
}

TEST(Upkeep, BooksTheFourFiguresAndReportsThem) {
    GameState game = NewGame(2);
    Give(game, 0, 0, 10, 3);  // an oil field
    Give(game, 1, 0, 0);
    Give(game, 2, 0, 0);
    Give(game, 3, 0, 0);
    GiveFactory(game, 0);
    GiveFactory(game, 1);
    game.Players[0].EconomyLevel = 2;
    game.Players[0].Money = 100;
    ScriptedRandom random({NoResearch});
    GameState expected = game;
    expected.Players[0].Money = 265;
    expected.Players[0].Oil = 12;

    const Report report = RunUpkeep(game, random, 0);

    EXPECT_EQ(game, expected);
    EXPECT_EQ(report.Title, "Vorlund - Upkeep");
    EXPECT_EQ(report.Headline, "Upkeep status for Player 1, Anna.");
    EXPECT_EQ(report.Body,
              "Upkeep for Troops and Factories: $22\rUpkeep for Tanks: 3 barrels\r\r"
              "Money collected from territories: $187\rRemaining money after expenses: $165\r\r");
}

TEST(Upkeep, SettlesMissingOilInMoneyAndCountsTheDebt) {
    GameState game = TwoWithOneTerritoryEach();
    Player& player = game.Players[1];  // income 39
    player.Money = -34;
    game.Territories[41].Tanks = 7;
    player.Tanks = 7;
    ScriptedRandom random({NoResearch});
    const Report report = RunUpkeep(game, random, 1);
    EXPECT_EQ(player.Money, -2);
    EXPECT_EQ(player.Oil, 0);
    EXPECT_EQ(player.DebtTurns, 1);
    EXPECT_TRUE(report.Body.ends_with("\r\r" + DebtLine)) << report.Body;
}

TEST(Upkeep, StopsAtTheEndsOfTheFields) {
    GameState game = TwoWithOneTerritoryEach();
    game.Players[0].Money = 32760;
    game.Players[0].Oil = 32767;
    game.Players[1].Money = -32000;
    game.Players[1].Troops = 32767;
    ScriptedRandom random({NoResearch, NoResearch});
    RunUpkeep(game, random, 0);
    RunUpkeep(game, random, 1);
    EXPECT_EQ(game.Players[0].Money, 32767);
    EXPECT_EQ(game.Players[0].Oil, 32767);
    EXPECT_EQ(game.Players[1].Money, -32768);
}

TEST(Upkeep, CollapsesAtTheThirdDebtEvenWithGoodTurnsBetween) {
    GameState game = TwoWithOneTerritoryEach();
    game.Territories[0].HasDefense = true;
    game.Territories[0].Troops = 4;
    GiveFactory(game, 0);
    Player& player = game.Players[0];
    player.Troops = 4;  // 39 dollars in, 9 out
    struct Row {
        std::int16_t moneyBefore;
        std::string end;
        bool dead;
    };
    const std::vector<Row> rows{{-31, DebtLine, false},
                                {500, "Remaining money after expenses: $30\r\r", false},
                                {-31, DebtLine, false},
                                {-30, "Remaining money after expenses: $30\r\r", false},
                                {-31, DebtLine + CollapseLine, true}};
    for (const Row& row : rows) {
        ScriptedRandom random({NoResearch});
        player.Money = row.moneyBefore;
        const Report report = RunUpkeep(game, random, 0);
        EXPECT_TRUE(report.Body.ends_with(row.end)) << report.Body;
        EXPECT_EQ(player.IsDead, row.dead);
        EXPECT_TRUE(Consistent(game));
    }
    EXPECT_EQ(game.DeadPlayers, 1);
    EXPECT_FALSE(game.Territories[0].Occupied);
    EXPECT_EQ(player.Troops, 4);
    EXPECT_EQ(player.Factories, 1);
}

TEST(Upkeep, ResearchesByLevelAndNeverASecondBomb) {
    struct Row {
        const char* what;
        std::int16_t level;
        float u;
        bool hadBomb;
        bool found;
    };
    const std::vector<Row> rows{
        {"level 0 throws 2 of 13", 0, For(2, 13), false, true},
        {"level 0 throws 3 of 13", 0, For(3, 13), false, false},
        {"level 1 throws 2 of 7", 1, For(2, 7), false, true},
        {"level 1 throws 1 of 7", 1, For(1, 7), false, false},
        {"level 2 throws 2 of 5", 2, For(2, 5), false, true},
        {"level 2 throws 3 of 5", 2, For(3, 5), false, false},
        {"level 3 throws 2 of 3", 3, For(2, 3), false, true},
        {"level 3 throws 1 of 3", 3, For(1, 3), false, false},
        {"a bomb is held already", 3, For(2, 3), true, false},
    };
    for (const Row& row : rows) {
        GameState game = TwoWithOneTerritoryEach();
        game.Players[0].NuclearLevel = row.level;
        game.Players[0].HasNuke = row.hadBomb;
        ScriptedRandom random({row.u});
        const Report report = RunUpkeep(game, random, 0);
        EXPECT_EQ(game.Players[0].HasNuke, row.found || row.hadBomb) << row.what;
        EXPECT_EQ(report.Body.ends_with(ResearchLine), row.found) << row.what;
    }
}

TEST(CheckDead, LooksAtOwnershipAlone) {
    GameState game = NewGame(3);
    Give(game, 0, 0, 0);
    game.Players[2].Troops = 9;
    EXPECT_FALSE(CheckDead(game, 0));
    EXPECT_TRUE(CheckDead(game, 2));
    EXPECT_EQ(game.DeadPlayers, 1);
    EXPECT_TRUE(game.Players[2].IsDead);
    EXPECT_EQ(NowDeadText(2), "Player 3 is now dead.");
}

TEST(AvailableCommands, IsAllOrAllButAttackOrEndTurnOrNone) {
    struct Row {
        const char* what;
        void (*change)(GameState&);
        CommandSet expected;
    };
    const std::vector<Row> rows{
        {"a later turn", [](GameState&) {}, CommandSet::All()},
        {"the first turn", [](GameState& g) { g.Players[0].FirstTurn = true; }, AllButAttack()},
        {"dead", [](GameState& g) { Bury(g, 0); }, CommandSet::Only(Command::EndTurn)},
        {"dead in the first turn",
         [](GameState& g) {
             Bury(g, 0);
             g.Players[0].FirstTurn = true;
         },
         CommandSet::Only(Command::EndTurn)},
        {"nobody lives",
         [](GameState& g) {
             Bury(g, 0);
             Bury(g, 1);
         },
         CommandSet::None()},
        {"the game is over", [](GameState& g) { g.GameOver = true; }, CommandSet::None()},
    };
    for (const Row& row : rows) {
        GameState game = TwoWithOneTerritoryEach();
        row.change(game);
        EXPECT_EQ(AvailableCommands(game), row.expected) << row.what;
    }
}

TEST(EndTurn, PassesToTheNextLivingPlayerAndRoundTheEnd) {
    struct Row {
        const char* what;
        int players;
        int from;
        int dead;
        int to;
    };
    const std::vector<Row> rows{
        {"to the next", 2, 0, -1, 1},        {"round the end", 2, 1, -1, 0},
        {"past a dead player", 3, 0, 1, 2},  {"round the end again", 3, 2, 1, 0},
        {"past the dead first", 3, 2, 0, 1}, {"past the dead last", 3, 1, 2, 0},
        {"from a dead player", 5, 4, 4, 0},
    };
    for (const Row& row : rows) {
        GameState game = NewGame(row.players);
        for (int p = 0; p < row.players; ++p) {
            if (p == row.dead) {
                Bury(game, p);
            } else {
                Give(game, 5 * p, p, 1);
            }
        }
        game.CurrentPlayer = static_cast<std::int16_t>(row.from);
        Play play(game, {NoResearch});
        play.Turn.EndTurn();
        EXPECT_EQ(play.Game.CurrentPlayer, row.to) << row.what;
        EXPECT_EQ(play.Seen.Picture, row.to) << row.what;
        EXPECT_EQ(play.Chance.Reseedings, 1) << row.what;
    }
}

TEST(EndTurn, GivesTheNextHumanMovesAttacksTitleUpkeepAndNoCommandYet) {
    GameState game = TwoWithOneTerritoryEach();
    game.Players[0].FirstTurn = true;
    game.Players[1].FirstTurn = true;
    game.Players[1].MovesLeft = 0;
    game.Players[1].AttacksLeft = 1;
    game.ComputerTurnEnded = true;
    Play play(game, {NoResearch});
    play.Turn.EndTurn();
    EXPECT_FALSE(play.Game.Players[0].FirstTurn);
    EXPECT_TRUE(play.Game.Players[1].FirstTurn);
    EXPECT_EQ(play.Game.Players[1].MovesLeft, 2);
    EXPECT_EQ(play.Game.Players[1].AttacksLeft, 2);
    EXPECT_EQ(play.Game.Players[1].Money, 39);
    EXPECT_FALSE(play.Game.ComputerTurnEnded);
    EXPECT_EQ(play.Seen.BoardTitle, "Vorlund - Ben's turn");
    EXPECT_EQ(play.Seen.Calls, (std::vector<std::string>{"CloseReport", "CloseDialogs", "SetCommands",
                                                         "SetBoardTitle", "RefreshMap", "ShowReport"}));
    EXPECT_EQ(play.Seen.Commands, CommandSet::None());

    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_EQ(play.Seen.Commands, AllButAttack());
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
        EXPECT_EQ(play.Seen.Calls, (std::vector<std::string>{"CloseReport", "CloseDialogs", "SetCommands",
                                                             "ShowGameOver", "SetBoardTitle", "Announce"}));
        EXPECT_FALSE(play.Turn.ReportClosed());
        EXPECT_EQ(play.Seen.Commands, CommandSet::None());
    }
}

TEST(EndTurn, ComesBackWhenNobodyLives) {
    GameState game = NewGame(3);
    for (int p = 0; p < 3; ++p) {
        Bury(game, p);
    }
    game.GameOver = true;
    Play play(game, {NoResearch});
    play.Turn.EndTurn();
    EXPECT_EQ(play.Seen.Commands, CommandSet::None());
}

TEST(ReportClosed, GivesTheLastButOneWhoCollapsedTheEndOfTheTurn) {
    GameState game = TwoWithOneTerritoryEach();
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
    EXPECT_EQ(play.Seen.Commands, CommandSet::None());
}

TEST(ReportClosed, LeavesTheCommandsAloneWhenTheLastOpponentHasFallen) {
    GameState game = TwoWithOneTerritoryEach();
    Abandon(game, 41);
    Bury(game, 1);
    Play play(game, {});
    EXPECT_FALSE(play.Turn.ReportClosed());
    EXPECT_TRUE(play.Seen.Calls.empty());
    EXPECT_EQ(AvailableCommands(play.Game), CommandSet::All());
}

/// Chance that never ends, for turns whose draws do not matter here.
class Steady final : public Random {
    float Uniform() override { return 0.5F; }
    void Reseed() override {}
};

TEST(ReportClosed, HandsFromComputerToComputerAndOnToTheNextHuman) {
    GameState game = NewGame(5);
    Bury(game, 2);
    for (const int p : {0, 1, 3, 4}) {
        Give(game, 10 * p, p, 1);
        game.PlayerAt(p).IsComputer = p == 1 || p == 3;
        game.PlayerAt(p).FirstTurn = true;
    }
    game.Players[3].AttacksLeft = 0;
    Steady random;
    Recorder seen;
    TurnCycle turn(game, random, seen, [&] { ComputerTurn(game, random, seen); });

    turn.EndTurn();
    EXPECT_EQ(seen.Shown.Title, "Computer player Ben's status");
    EXPECT_EQ(seen.Picture, 1);
    EXPECT_TRUE(game.ComputerTurnEnded);

    seen.Calls.clear();
    EXPECT_TRUE(turn.ReportClosed());
    EXPECT_EQ(seen.Shown.Title, "Computer player Dora's status");
    EXPECT_EQ(seen.Picture, 3);
    EXPECT_EQ(game.Players[3].AttacksLeft, 0);
    EXPECT_EQ(seen.Calls, (std::vector<std::string>{"HideReport", "CloseReport", "SetBoardTitle",
                                                    "RefreshMap", "ShowReport"}));

    seen.Calls.clear();
    EXPECT_TRUE(turn.ReportClosed());
    EXPECT_EQ(game.CurrentPlayer, 4);
    EXPECT_EQ(seen.Shown.Title, "Vorlund - Upkeep");
    EXPECT_TRUE(seen.Shown.Body.starts_with("Upkeep for Troops"));
    EXPECT_EQ(seen.Calls, (std::vector<std::string>{"CloseDialogs", "SetCommands", "SetBoardTitle",
                                                    "RefreshMap", "ShowReport"}));
    EXPECT_FALSE(game.ComputerTurnEnded);

    EXPECT_FALSE(turn.ReportClosed());
    EXPECT_EQ(seen.Commands, AllButAttack());
}

TEST(OpenFirstTurn, ShowsTheUpkeepWithoutPicture) {
    Play play(TwoWithOneTerritoryEach(), {NoResearch});
    play.Turn.OpenFirstTurn();
    EXPECT_EQ(play.Seen.Shown.Title, "Vorlund - Upkeep");
    EXPECT_TRUE(play.Seen.ReportVisible);
    EXPECT_EQ(play.Seen.Picture, std::nullopt);
    EXPECT_EQ(play.Seen.BoardTitle, "Vorlund - Anna's turn");
}

TEST(NobodyWins, RedrawsAnnouncesAndClosesTheDialogs) {
    GameState game = NewGame(2);
    Recorder seen;
    NobodyWins(game, seen);
    EXPECT_TRUE(game.GameOver);
    EXPECT_EQ(seen.Announcements, std::vector<std::string>{"All players are dead, no one wins..."});
    EXPECT_EQ(seen.Calls,
              (std::vector<std::string>{"RefreshMap", "SetCommands", "Announce", "CloseDialogs"}));
    EXPECT_EQ(seen.Commands, CommandSet::None());
}

}  // namespace
}  // namespace vorlund
