#include <gtest/gtest.h>

#include <vector>

#include "actions/battle.h"
#include "state/consistent.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

// Western USA (6) is Anna's, its neighbours Midwest USA (7) and Mexico (9) are Ben's.
GameState AnnaAgainstBen(int troops, int tanks, int enemyTroops, int enemyTanks) {
    GameState game = NewGame(3);
    Give(game, 5, 0, troops, tanks);
    Give(game, 6, 1, enemyTroops, enemyTanks);
    Give(game, 8, 1, 4);
    Give(game, 30, 2, 1);
    return game;
}

std::vector<float> Rolls(int faces, const std::vector<int>& rolls) {
    std::vector<float> script;
    for (const int roll : rolls) {
        script.push_back(For(roll, faces));
    }
    return script;
}

Report Attacked(GameState& game, Random& random, const AttackEntries& entries) {
    const auto outcome = Attck(game, random, true, entries);
    const Report* report = std::get_if<Report>(&outcome);
    EXPECT_NE(report, nullptr);
    EXPECT_TRUE(Consistent(game));
    return report != nullptr ? *report : Report{};
}

TEST(Attck, RefusesInOrderAndChangesNothing) {
    const std::string invalid =
        "You entered invalid attack data...\rCheck the validity of your attack and try again.";
    struct Row {
        const char* what;
        AttackEntries entries;
        std::string message;
    };
    const std::vector<Row> rows{
        {"nothing typed", {"", "", "", ""}, "Enter a number 1-42 for the attacking territory."},
        {"no target", {"6", "", "x", ""}, "Enter a number 1-42 for the defending territory."},
        {"letters for troops", {"6", "7", "abc", ""}, invalid},
        {"letters for tanks", {"6", "7", "1", "abc"}, invalid},
        {"blanks for troops", {"6", "7", " ", "1"}, invalid},
        {"no units", {"6", "7", "", ""}, "Enter a number for either troops or tanks."},
        {"zero units from an odd place",
         {"x", "y", "0", "0.0"},
         "Enter a number for either troops or tanks."},
        {"letters for the source", {"x", "7", "1", ""}, invalid},
        {"letters for the target", {"6", "x", "1", ""}, invalid},
        {"a blank for the source", {" ", "7", "1", ""}, invalid},
        {"a source beyond 16 bits", {"4e4", "7", "1", ""}, invalid},
        {"number 0", {"0", "7", "1", ""}, invalid},
        {"number 43", {"6", "43", "1", ""}, invalid},
        {"another player's source", {"7", "6", "1", ""}, invalid},
        {"an empty target", {"6", "2", "1", ""}, invalid},
        {"no neighbour", {"6", "31", "1", ""}, invalid},
        {"troops beyond 16 bits", {"6", "7", "9e9", ""}, invalid},
        {"tanks beyond 16 bits", {"6", "7", "1", "-4e4"}, invalid},
        {"one troop too many", {"6", "7", "6", ""}, "You are attacking with more troops than you have."},
        {"one tank too many", {"6", "7", "", "3"}, "You are attacking with more tanks than you have."},
        {"too many tanks before too few troops",
         {"6", "7", "-1", "3"},
         "You are attacking with more tanks than you have."},
        {"negative troops", {"6", "7", "-1", ""}, "You cannot attack with negative troops."},
        {"half a troop below 0", {"6", "7", "-.5", "1"}, "You cannot attack with negative troops."},
        {"negative tanks", {"6", "7", "1", "-1"}, "You cannot attack with negative tanks."},
    };
    for (const Row& row : rows) {
        GameState game = AnnaAgainstBen(5, 2, 1, 0);
        const GameState before = game;
        ScriptedRandom random({});
        const auto outcome = Attck(game, random, true, row.entries);
        ASSERT_TRUE(std::holds_alternative<Refusal>(outcome)) << row.what;
        EXPECT_EQ(std::get<Refusal>(outcome).Message, row.message) << row.what;
        EXPECT_EQ(game, before) << row.what;
        EXPECT_EQ(random.Reseedings, 1) << row.what;
    }
}

TEST(Attck, OnlyBeepsWithoutTheCommand) {
    GameState game = AnnaAgainstBen(5, 2, 1, 0);
    const GameState before = game;
    ScriptedRandom random({});
    EXPECT_TRUE(std::holds_alternative<Beep>(Attck(game, random, false, {"6", "7", "1", ""})));
    EXPECT_EQ(game, before);
    EXPECT_EQ(random.Reseedings, 0);
}

TEST(Attck, WinsRoundByRoundAndMovesTheSurvivorsIn) {
    GameState game = AnnaAgainstBen(5, 1, 2, 1);
    GiveFactory(game, 6);
    game.Territories[6].HasDefense = true;
    game.Players[1].WarfareLevel = 1;  // with the defense three ahead: a die of 15
    GameState expected = game;
    expected.Territories[5].Troops = 2;
    expected.Territories[5].Tanks = 0;
    Capture(expected, 6, 0, 1);
    expected.Players[0].Troops = 2;
    expected.Players[0].AttacksLeft = 1;
    expected.Players[1].Troops = 4;
    expected.Players[1].Tanks = 0;
    ASSERT_EQ(expected.Players[1].Factories, 0);
    ScriptedRandom random(Rolls(15, {5, 6, 0, 14, 7, 10, 5, 4, 3}));

    const Report report = Attacked(game, random, {"6", "7", "3", "1"});

    EXPECT_EQ(game, expected);
    EXPECT_EQ(report.Title, "Vorlund - Battle Results");
    EXPECT_EQ(report.Headline, "The battle was successful... you now have control of Midwest USA.");
    EXPECT_EQ(report.Body,
              "Casualties for attacker (Player 1, Anna):\r        Troops: 3\r        Tanks: 0\r\r"
              "Casualties for defender (Player 2, Ben):\r        Troops: 2\r        Tanks: 1\r\r");
}

TEST(Attck, LosesTheWholeForceAndForgetsHitsThatKilledNoTank) {
    GameState game = AnnaAgainstBen(3, 2, 0, 2);
    game.Players[0].WarfareLevel = 3;  // a die of 9
    GameState expected = game;
    expected.Territories[5].Tanks = 1;
    expected.Players[0].Tanks = 1;
    expected.Players[0].AttacksLeft = 1;
    expected.Territories[6].Tanks = 1;
    expected.Players[1].Tanks = 1;
    ScriptedRandom random(Rolls(9, {5, 6, 0, 1, 8, 2, 3, 7}));

    const Report report = Attacked(game, random, {" 6 ", "7", "", "1"});

    EXPECT_EQ(game, expected);
    EXPECT_EQ(report.Headline, "The battle was unsuccessful... the enemy held off your attack.");
    EXPECT_EQ(report.Body,
              "Casualties for attacker (Player 1, Anna):\r        Troops: 0\r        Tanks: 1\r\r"
              "Casualties for defender (Player 2, Ben):\r        Troops: 0\r        Tanks: 1\r\r");
}

TEST(Attck, GivesUpATerritoryLeftEmpty) {
    struct Row {
        const char* what;
        int roll;
    };
    for (const Row& row : {Row{"the battle is won", 5}, Row{"the battle is lost", 6}}) {
        GameState game = AnnaAgainstBen(1, 0, 1, 0);
        Give(game, 1, 0, 1);
        GiveFactory(game, 5);
        game.Territories[5].HasDefense = true;
        ScriptedRandom random(Rolls(12, {row.roll}));
        const Report report = Attacked(game, random, {"6", "7", "1", "0"});
        EXPECT_EQ(game.Territories[5].Owner, NoOwner) << row.what;
        EXPECT_EQ(game.Players[0].Factories, 0) << row.what;
        EXPECT_FALSE(game.Players[0].IsDead) << row.what;
        EXPECT_TRUE(report.Body.ends_with("Tanks: 0\r\r")) << row.what;
    }
}

TEST(Attck, KillsTheAttackerWhoseLastTerritoryIsLeftEmpty) {
    GameState game = AnnaAgainstBen(1, 0, 1, 0);
    ScriptedRandom random(Rolls(12, {6}));
    const Report report = Attacked(game, random, {"6", "7", "1", ""});
    EXPECT_TRUE(report.Body.ends_with(
        "Tanks: 0\r\rYou have killed yourself... you have no troops or tanks remaining."));
    EXPECT_TRUE(game.Players[0].IsDead);
    EXPECT_EQ(game.DeadPlayers, 1);
}

TEST(Attck, KillsTheDefenderWhoseLastTerritoryFalls) {
    GameState game = AnnaAgainstBen(2, 0, 1, 0);
    Abandon(game, 6);
    Claim(game, 6, 2);
    Abandon(game, 30);
    game.Territories[30].Troops = 0;
    ScriptedRandom random(Rolls(12, {0}));
    const Report report = Attacked(game, random, {"6", "7", "1", ""});
    EXPECT_TRUE(report.Body.ends_with("        Tanks: 0\r\rPlayer 3 is now dead."));
    EXPECT_EQ(game.DeadPlayers, 1);
    EXPECT_FALSE(game.GameOver);
}

TEST(Attck, ReadsTerritoriesRoundedAndUnitsCutDown) {
    struct Row {
        const char* what;
        AttackEntries entries;
        int troopsLeft;
        std::vector<int> rolls;
    };
    // Territories 1 and 3 (indices 0 and 2) are Anna's, 2 between them is Ben's.
    const std::vector<Row> rows{
        {"1.5 is territory 1", {"1.5", "2", "1", ""}, 3, {6}},
        {".5 is territory 1", {".5", "2", "1", ""}, 3, {6}},
        {"1.6 is territory 2", {"3", "1.6", "1", ""}, 4, {6}},
        {"1.9 troops are 1", {"1", "2", "1.9", ""}, 3, {6}},
        {"half a troop is none, loses, and uses the attack up", {"1", "2", "0.5", ""}, 4, {}},
    };
    for (const Row& row : rows) {
        GameState game = NewGame(2);
        Give(game, 0, 0, 4);
        Give(game, 2, 0, 4);
        Give(game, 1, 1, 4);
        ScriptedRandom random(Rolls(12, row.rolls));
        Attacked(game, random, row.entries);
        EXPECT_EQ(game.Territories[0].Troops, row.troopsLeft) << row.what;
        EXPECT_EQ(game.Players[0].AttacksLeft, 1) << row.what;
        EXPECT_EQ(game.Territories[1].Owner, 1) << row.what;
    }
}

TEST(Attck, TakesAnUndefendedTerritoryWithoutARound) {
    GameState game = AnnaAgainstBen(4, 0, 0, 0);
    ScriptedRandom random({});
    Attacked(game, random, {"6", "7", "3", ""});
    EXPECT_EQ(game.Territories[6].Owner, 0);
    EXPECT_EQ(game.Territories[6].Troops, 3);
    EXPECT_EQ(game.Players[0].Troops, 4);
}

TEST(BattleRound, HasTheDefenderLoseSixInTwelveAndTheDifferenceInStrength) {
    struct Row {
        const char* what;
        std::int16_t attackerLevel;
        std::int16_t defenderLevel;
        bool defense;
        float faces;
    };
    const std::vector<Row> rows{
        {"equal", 0, 0, false, 12},
        {"equal at the top", 3, 3, false, 12},
        {"behind a defense", 0, 0, true, 14},
        {"the defender a level ahead", 1, 2, false, 13},
        {"the defender three ahead and behind a defense", 0, 3, true, 17},
        {"the attacker three ahead", 3, 0, false, 9},
        {"the attacker three ahead of a defense", 3, 0, true, 11},
    };
    for (const Row& row : rows) {
        for (const bool defenderLoses : {true, false}) {
            GameState game = AnnaAgainstBen(1, 0, 1, 0);
            game.Players[0].WarfareLevel = row.attackerLevel;
            game.Players[1].WarfareLevel = row.defenderLevel;
            game.Territories[6].HasDefense = row.defense;
            ScriptedRandom random({6 / row.faces + (defenderLoses ? -1e-5F : 1e-5F)});
            Battle battle = BeginBattle(game, 6, 1, 0);
            BattleRound(game, random, battle);
            EXPECT_EQ(battle.Troops, defenderLoses ? 1 : 0) << row.what;
            EXPECT_EQ(game.Territories[6].Troops, defenderLoses ? 0 : 1) << row.what;
        }
    }
}

TEST(AttacksLeft, EnableTheCommandAtOneAndTwo) {
    struct Row {
        std::int16_t left;
        bool enabled;
        const char* text;
    };
    for (const Row& row : {Row{2, true, "You have 2 attacks left this turn."},
                           Row{1, true, "You have 1 attack left this turn."},
                           Row{0, false, "You have 0 attacks left this turn."},
                           Row{-1, false, "You have 0 attacks left this turn."},
                           Row{3, false, "You have 0 attacks left this turn."}}) {
        GameState game = NewGame(2);
        game.Players[0].AttacksLeft = row.left;
        EXPECT_EQ(CanAttack(game), row.enabled) << row.left;
        EXPECT_EQ(AttacksLeftText(game), row.text) << row.left;
    }
}

}  // namespace
}  // namespace vorlund
