#include <gtest/gtest.h>

#include <vector>

#include "computer/attacks.h"
#include "computer/computer_turn.h"
#include "computer/expansion.h"
#include "computer/reinforcement.h"
#include "state/consistent.h"
#include "tests/rules/recorder.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

const float NoBomb = For(0, 5);
const float Forward = For(4, 10);
const float Backward = For(5, 10);
const float NoDefense = For(1, 6);

GameState ComputerToMove(int players, int computer) {
    GameState game = NewGame(players);
    game.CurrentPlayer = static_cast<std::int16_t>(computer);
    game.Current().IsComputer = true;
    return game;
}

/// A game in which every phase of Ben's turn finds something to do.
GameState Eventful() {
    GameState game = ComputerToMove(3, 1);
    Give(game, 5, 1, 10, 2);  // Western USA, next to 1 (empty), 6 and 8
    Give(game, 34, 1, 4);     // Japan, next to 33
    Give(game, 6, 0, 21, 5);
    game.Territories[6].HasDefense = true;
    Give(game, 33, 0, 2);
    Give(game, 8, 2, 1);
    GiveFactory(game, 8);
    game.Players[0].WarfareLevel = 3;
    return game;
}

std::vector<float> EventfulScript() {
    return {
        For(2, 5),                // a bomb
        For(1, 3),   For(1, 5),   // three players: two claims
        Backward,    Forward,     // from the last territory, from the first slot
        For(2, 6),   For(0, 6),   // claims 1 with a defense, then 0 without
        For(11, 76),              // tanks for the front: 4 territories, so 12 in 76
        For(1, 2),   For(0, 3),   // 0 borders 1: a troop, a tank
        For(2, 3),   For(1, 5),   // 0 borders 28: a troop
        For(0, 2),   For(1, 3),   // 1 borders 0: a troop
        For(2, 3),   For(2, 3),   // 1 borders 2: a troop
        For(3, 4),   For(1, 3),   // 1 borders 5: nothing, it has 4 troops
        For(2, 10),  For(0, 7),   // 5 borders 1: a troop, a tank
        For(6, 12),  For(5, 12),  // Mexico falls for one troop
        For(6, 15),  For(7, 15),  For(14, 15), For(5, 15),  For(8, 15),
        For(9, 15),  For(10, 15), For(11, 15), For(12, 15),  // Manchuria holds, a troop fewer
    };
}

GameState AfterEventful() {
    GameState game = Eventful();
    game.ComputerTurnEnded = true;
    game.Players[1].Factories = 1;
    game.Territories[5].HasFactory = true;
    Claim(game, 0, 1);
    Claim(game, 1, 1);
    game.Territories[0].Troops = 4;
    game.Territories[0].Tanks = 1;
    game.Territories[1].Troops = 5;
    game.Territories[1].Tanks = 1;
    game.Territories[1].HasDefense = true;
    game.Territories[5].Troops = 2;
    game.Territories[5].Tanks = 0;
    game.Territories[6].Troops = 11;
    game.Territories[6].Tanks = 4;
    Capture(game, 8, 12, 5);
    game.Territories[33].Troops = 1;
    game.Territories[34].Troops = 2;
    game.Territories[34].Tanks = 0;
    game.Players[0].Troops = 12;
    game.Players[0].Tanks = 4;
    game.Players[1].Troops = 8;  // 14, less 6 that fell; what was created does not count
    game.Players[1].Tanks = 1;
    game.Players[2].Troops = 0;
    Bury(game, 2);
    return game;
}

TEST(ComputerTurn, PlaysAWholeTurnToTheUnitAndTheLetter) {
    GameState game = Eventful();
    ScriptedRandom random(EventfulScript());
    Recorder seen;

    ComputerTurn(game, random, seen);

    EXPECT_EQ(game, AfterEventful());
    EXPECT_TRUE(Consistent(game));
    EXPECT_EQ(random.Reseedings, 1);
    EXPECT_EQ(seen.BoardTitle, "Vorlund - Ben's turn");
    EXPECT_EQ(seen.Picture, 1);
    EXPECT_EQ(seen.Shown.Title, "Computer player Ben's status");
    EXPECT_EQ(seen.Shown.Headline, "The computer did the following:");
    EXPECT_EQ(seen.Shown.Body,
              "Moved forces into Vancouver Territory.\rMoved forces into Alaskan Territory.\r"
              "Player 1, Anna's, Midwest USA was nuked and lost 10 troops and 1 tanks.\r"
              "\rAttack on Mexico, Cleo, was successful.\r"
              "Ben lost 1/0 troops/tanks, and defender lost 1/0 troops/tanks.\r"
              "Player 3 is now dead.\r"
              "\rAttack on Manchurian Territory, Anna, was held off.\r"
              "Ben lost 5/1 troops/tanks, and defender lost 1/0 troops/tanks.\r");
    EXPECT_EQ(seen.Calls,
              (std::vector<std::string>{"CloseReport", "SetBoardTitle", "RefreshMap", "ShowReport"}));
}

TEST(ComputerTurn, WinsInTheMiddleOfItsAttacks) {
    GameState game = ComputerToMove(2, 1);
    Give(game, 34, 1, 20, 0);
    GiveFactory(game, 34);
    Give(game, 33, 0, 1);
    ScriptedRandom random({NoBomb, For(0, 3), For(1, 5), Forward, Forward, For(12, 79), For(0, 12)});
    Recorder seen;
    game.Players[1].FirstTurn = false;

    ComputerTurn(game, random, seen);

    EXPECT_TRUE(game.GameOver);
    EXPECT_FALSE(game.ComputerTurnEnded);
    EXPECT_EQ(seen.Shown.Body,
              "\rAttack on Manchurian Territory, Anna, was successful.\r"
              "Ben lost 0/0 troops/tanks, and defender lost 1/0 troops/tanks.\rPlayer 1 is now dead.\r");
    EXPECT_EQ(seen.Picture, 1);
    EXPECT_EQ(seen.BoardTitle, "Vorlund - Ben wins");
    EXPECT_EQ(seen.Announcements, std::vector<std::string>{"Player 2, Ben, wins the game!"});
    EXPECT_EQ(seen.Calls,
              (std::vector<std::string>{"CloseReport", "SetBoardTitle", "ShowGameOver", "RefreshMap",
                                        "ShowReport", "SetBoardTitle", "Announce"}));
    EXPECT_EQ(game.Territories[34].Troops, 2);
    EXPECT_EQ(game.Territories[33].Troops, 21);
}

TEST(ComputerTurn, TakesTwoTerritoriesAndMakesNoAttackAtFirst) {
    GameState game = ComputerToMove(4, 1);
    game.Players[1].FirstTurn = true;
    Give(game, 13, 1, 50);  // Brazil: 11, 12, 14, 22
    Give(game, 11, 0, 1);
    Give(game, 40, 2, 1);
    Give(game, 20, 3, 1);
    game.Territories[13].Tanks = 30;
    ScriptedRandom random({NoBomb, Forward, Backward, NoDefense, NoDefense, For(12, 77),
                           // 12: the enemy at 11, own 13, own 14;  13: enemy at 11 and 12, 14, 22
                           For(0, 2), For(1, 3), For(0, 3), For(1, 3), For(3, 53), For(1, 63), For(3, 53),
                           For(1, 63), For(3, 53), For(1, 63), For(0, 2), For(1, 3), For(0, 2), For(1, 3),
                           For(0, 2), For(1, 3), For(0, 2), For(1, 3)});
    Recorder seen;
    ComputerTurn(game, random, seen);
    EXPECT_EQ(seen.Shown.Body,
              "Moved forces into Western Africa.\rMoved forces into Argentinian Territory.\r");
    EXPECT_FALSE(game.Players[1].FirstTurn);
}

TEST(ComputerTurn, DrawsItsClaimsByTheNumberOfPlayers) {
    struct Row {
        const char* what;
        int players;
        std::vector<float> draws;
        int claims;
    };
    const std::vector<Row> rows{
        {"two players, lucky", 2, {For(1, 3)}, 2},
        {"two players, no luck", 2, {For(2, 3), For(1, 5)}, 1},
        {"three players, lucky", 3, {For(1, 3), For(1, 5)}, 2},
        {"three players, no luck", 3, {For(1, 3), For(2, 5)}, 1},
        {"four players have no such luck", 4, {For(1, 3), For(1, 5)}, 1},
        {"five players neither", 5, {For(1, 3), For(1, 5)}, 1},
    };
    for (const Row& row : rows) {
        GameState game = ComputerToMove(row.players, 0);
        Give(game, 26, 0, 1);  // South Africa: 25 alone, which borders 24
        Give(game, 25, 0, 1);
        Give(game, 24, 0, 1);  // 22, 23, 25, 27
        for (int p = 1; p < row.players; ++p) {
            Give(game, 33 + 2 * p, p, 1);
        }
        std::vector<float> script{NoBomb};
        script.insert(script.end(), row.draws.begin(), row.draws.end());
        script.insert(script.end(), {Forward, Forward});
        script.insert(script.end(), static_cast<std::size_t>(row.claims), NoDefense);
        script.push_back(For(79 - 3 - row.claims, 80 - 3 - row.claims));
        script.insert(script.end(), static_cast<std::size_t>(row.claims) + 3, For(0, 7));
        ScriptedRandom random(script);
        Recorder seen;
        ComputerTurn(game, random, seen);
        EXPECT_EQ(seen.Shown.Body,
                  row.claims == 2 ? "Moved forces into Western Africa.\rMoved forces into Northern Africa.\r"
                                  : "Moved forces into Western Africa.\r")
            << row.what;
    }
}

TEST(ComputerTurn, BuildsItsFreeFactoryWhereItIsStrongest) {
    struct Row {
        const char* what;
        int troops26, tanks26, troops34, tanks34;
        int place;
    };
    for (const Row& row :
         {Row{"a tank counts three troops", 2, 1, 4, 0, 26}, Row{"more troops", 2, 1, 6, 0, 34},
          Row{"the last among equals", 3, 0, 0, 1, 34}, Row{"nothing anywhere", 0, 0, 0, 0, 34}}) {
        GameState game = ComputerToMove(2, 0);
        game.Players[0].FirstTurn = true;
        Give(game, 26, 0, row.troops26, row.tanks26);
        Give(game, 34, 0, row.troops34, row.tanks34);
        Give(game, 25, 1, 32767);
        Give(game, 33, 1, 32767);
        ScriptedRandom random({NoBomb, Forward, Forward, For(12, 78)});
        Recorder seen;
        ComputerTurn(game, random, seen);
        EXPECT_TRUE(game.TerritoryAt(row.place).HasFactory) << row.what;
        EXPECT_EQ(game.Players[0].Factories, 1) << row.what;
        EXPECT_EQ(game.TerritoryAt(60 - row.place).HasFactory, false) << row.what;
    }
}

TEST(Expand, ScansFromEitherEndAndStaysWhereItClaimed) {
    struct Row {
        const char* what;
        float territories;
        float slots;
        std::string body;
    };
    const std::string m = "Moved forces into ";
    // Quebec (2, 7, 4) and Japan (33) are the computer's.
    const std::vector<Row> rows{
        {"forward, first slots first", Forward, Forward, m + "Montreal Territory.\r" + m + "Eastern USA.\r"},
        {"forward, last slots first", Forward, Backward, m + "Greenland.\r" + m + "Eastern USA.\r"},
        {"backward, on from the land just claimed, first slots first", Backward, Forward,
         m + "Manchurian Territory.\r" + m + "Northern Russia.\r"},
        {"backward, on from the land just claimed, last slots first", Backward, Backward,
         m + "Manchurian Territory.\r" + m + "China.\r"},
    };
    for (const Row& row : rows) {
        GameState game = ComputerToMove(2, 0);
        Give(game, 3, 0, 1);
        Give(game, 34, 0, 1);
        ScriptedRandom random({row.territories, row.slots, NoDefense, For(2, 6)});
        std::string body;
        EXPECT_EQ(Expand(game, random, 2, body), 2) << row.what;
        EXPECT_EQ(body, row.body) << row.what;
        EXPECT_EQ(game.Players[0].Troops, 2) << row.what;
    }
}

TEST(Expand, ClaimsNothingWhereNothingIsEmpty) {
    GameState game = ComputerToMove(2, 0);
    Give(game, 34, 0, 1);
    Give(game, 33, 1, 1);
    const GameState before = game;
    ScriptedRandom random({Forward, Backward});
    std::string body;
    EXPECT_EQ(Expand(game, random, 2, body), 0);
    EXPECT_EQ(game, before);
    EXPECT_EQ(body, "");
}

TEST(Reinforce, SharesThePoolOutOverTheBordersWithEnemies) {
    struct Row {
        const char* what;
        int count;  // territories, most of them far from any border of this little world
        int enemies;
        int share;
    };
    for (const Row& row :
         {Row{"five territories and two contacts", 5, 2, 3}, Row{"eleven give a pool of 13", 11, 1, 13},
          Row{"ten give a pool of 12", 10, 1, 12}, Row{"one and three give nothing", 1, 3, 0}}) {
        GameState game = ComputerToMove(2, 0);
        Give(game, 10, 0, 7);  // the Caribbean: 7, 9, 11
        const std::vector<int> neighbours{7, 9, 11};
        std::vector<float> script{For(12, 80 - row.count)};
        for (int n = 0; n < 3; ++n) {
            if (n < row.enemies) {
                Give(game, neighbours[static_cast<std::size_t>(n)], 1, 1);
            } else {
                script.insert(script.end(), {For(6, 7), For(2, 3)});  // no luck on the other borders
            }
        }
        ScriptedRandom random(script);
        Reinforce(game, random, row.count);
        EXPECT_EQ(game.Territories[10].Troops, 7 + row.share * row.enemies) << row.what;
        EXPECT_EQ(game.Territories[10].Tanks, 0) << row.what;
        EXPECT_EQ(game.Players[0].Troops, 7) << row.what;
    }
}

TEST(Reinforce, GivesEveryTerritoryTwoTroopsWithoutAnEnemyNear) {
    for (const int count : {1, 4, 5, 10, 42}) {
        GameState game = ComputerToMove(2, 0);
        std::vector<float> script{For(0, 80 - count)};
        for (int t = 0; t < count; ++t) {
            Give(game, t, 0, t == 0 ? 32766 : 0);
            script.push_back(For(t == 0 ? 4 : 5, 7));
        }
        if (count < NumTerritories) {
            for (int t = count; t < NumTerritories; ++t) {
                game.TerritoryAt(t).Neighbours.fill(NoNeighbour);
            }
        }
        ScriptedRandom random(script);
        Reinforce(game, random, count);
        EXPECT_EQ(game.Territories[0].Troops, 32767) << count;
        EXPECT_EQ(game.Territories[0].Tanks, 1) << count;
        for (int t = 1; t < count; ++t) {
            EXPECT_EQ(game.TerritoryAt(t).Troops, 2) << count;
            EXPECT_EQ(game.TerritoryAt(t).Tanks, 0) << count;
        }
    }
}

TEST(StrikeByComputer, NeedsTwentyTroopsAndTakesTheFirstTarget) {
    GameState game = ComputerToMove(3, 0);
    game.Players[0].HasNuke = true;
    Give(game, 1, 0, 100);
    Give(game, 3, 1, 19, 50);
    const GameState before = game;
    std::string body;
    StrikeByComputer(game, body);
    EXPECT_EQ(game, before) << "the bomb is kept";

    Give(game, 9, 2, 20, 7);
    Give(game, 12, 1, 400);
    StrikeByComputer(game, body);
    EXPECT_EQ(game.Territories[9].Troops, 10);
    EXPECT_EQ(game.Territories[9].Tanks, 6);
    EXPECT_EQ(game.Players[2].Tanks, 6);
    EXPECT_FALSE(game.Players[0].HasNuke);
    EXPECT_EQ(body, "Player 3, Cleo's, Central America was nuked and lost 10 troops and 1 tanks.\r");
}

TEST(AttackByComputer, ChoosesByStrengthAlone) {
    struct Row {
        const char* what;
        int troops, tanks, enemyTroops, enemyTanks;
        bool attacks;
    };
    const std::vector<Row> rows{
        {"4 against 1: 2 is not above 3", 4, 0, 1, 0, false},
        {"5 against 1: 3 is not above 3", 5, 0, 1, 0, false},
        {"6 against 1: 4 is above 3", 6, 0, 1, 0, true},
        {"a tank counts two for the attacker", 4, 1, 1, 0, true},
        {"a tank counts three for the defender", 8, 0, 1, 1, false},
        {"and no more than three", 9, 0, 1, 1, true},
        {"three troops never attack", 3, 90, 0, 0, false},
        {"four do", 4, 90, 0, 0, true},
    };
    for (const Row& row : rows) {
        for (const bool defense : {false, true}) {
            GameState game = ComputerToMove(2, 0);
            Give(game, 34, 0, row.troops, row.tanks);
            Give(game, 33, 1, row.enemyTroops, row.enemyTanks);
            Give(game, 0, 1, 500);
            game.Territories[33].HasDefense = defense;
            const int rounds = row.attacks ? row.enemyTroops + 3 * row.enemyTanks : 0;
            ScriptedRandom random(std::vector<float>(static_cast<std::size_t>(rounds), 0.0F));
            std::string body;
            EXPECT_FALSE(AttackByComputer(game, random, 2, body)) << row.what;
            EXPECT_EQ(game.Territories[33].Owner, row.attacks ? 0 : 1) << row.what;
            EXPECT_EQ(game.Territories[34].Troops, row.attacks ? 2 : row.troops) << row.what;
            EXPECT_EQ(game.Territories[34].Tanks, row.attacks ? 0 : row.tanks) << row.what;
        }
    }
}

TEST(AttackByComputer, GoesByNumberThenBySlotAndOnFromWhatItTook) {
    GameState game = ComputerToMove(3, 0);
    Give(game, 3, 0, 30);  // Quebec: 2, 7, 4
    Give(game, 20, 0, 900);
    Give(game, 19, 1, 1);  // next to 20, and weaker than what 3 meets
    Give(game, 7, 1, 2);
    Give(game, 2, 1, 3);
    Give(game, 6, 1, 4);  // next to 2 and to 7
    ScriptedRandom random(std::vector<float>(3 + 4, 0.0F));
    std::string body;
    AttackByComputer(game, random, 2, body);
    EXPECT_EQ(game.Territories[2].Owner, 0);
    EXPECT_EQ(game.Territories[2].Troops, 2) << "attacked at once from the land just taken";
    EXPECT_EQ(game.Territories[6].Owner, 0) << "the third slot there, 7 is in the fourth";
    EXPECT_EQ(game.Territories[7].Owner, 1);
    EXPECT_EQ(game.Territories[19].Owner, 1);
}

}  // namespace
}  // namespace vorlund
