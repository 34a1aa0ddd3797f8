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

TEST(ComputerTurn, PlaysAWholeTurnToTheUnitAndTheLetter) {
    GameState game = ComputerToMove(3, 1);
    Give(game, 5, 1, 10, 2);  // Western USA, next to 1 (empty), 6 and 8
    Give(game, 34, 1, 4);     // Japan, next to 33
    Give(game, 6, 0, 21, 5);
    game.Territories[6].HasDefense = true;
    Give(game, 33, 0, 2);
    Give(game, 8, 2, 1);
    GiveFactory(game, 8);
    game.Players[0].WarfareLevel = 3;
    const GameState before = game;
    ScriptedRandom random({
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
    });
    Recorder seen;
    ComputerTurn(game, random, seen);
    // What was created does not count in Ben's totals, what fell does.
    EXPECT_EQ(Changes(before, game),
              "1 Ben 4/1; 2 Ben 5/1 D; 6 Ben 2/0 F; 7 Anna 11/4 D; 9 Ben 12/5; 34 Anna 1/0; 35 Ben 2/0; "
              "Anna Troops 12 Tanks 4; Ben Troops 8 Tanks 1 Factories 1; Cleo Troops 0 Factories 0 IsDead 1");
    EXPECT_TRUE(Consistent(game));
    EXPECT_TRUE(game.ComputerTurnEnded);
    EXPECT_EQ(random.Reseedings, 1);
    EXPECT_EQ(seen.BoardTitle, "Vorlund - Ben's turn");
    EXPECT_EQ(seen.Picture, 1);
    EXPECT_EQ(seen.Shown,
              (Report{"Computer player Ben's status", "The computer did the following:",
                      "Moved forces into Vancouver Territory.\rMoved forces into Alaskan Territory.\r"
                      "Player 1, Anna's, Midwest USA was nuked and lost 10 troops and 1 tanks.\r"
                      "\rAttack on Mexico, Cleo, was successful.\r"
                      "Ben lost 1/0 troops/tanks, and defender lost 1/0 troops/tanks.\r"
                      "Player 3 is now dead.\r"
                      "\rAttack on Manchurian Territory, Anna, was held off.\r"
                      "Ben lost 5/1 troops/tanks, and defender lost 1/0 troops/tanks.\r"}));
    EXPECT_EQ(seen.Calls, " CloseReport SetBoardTitle RefreshMap ShowReport");
}

TEST(ComputerTurn, WinsInTheMiddleOfItsAttacks) {
    GameState game = ComputerToMove(2, 1);
    Give(game, 34, 1, 20, 0);
    GiveFactory(game, 34);
    Give(game, 33, 0, 1);
    ScriptedRandom random({NoBomb, For(0, 3), For(1, 5), Forward, Forward, For(12, 79), For(0, 12)});
    Recorder seen;
    ComputerTurn(game, random, seen);
    EXPECT_TRUE(game.GameOver);
    EXPECT_FALSE(game.ComputerTurnEnded);
    EXPECT_EQ(game.Territories[34].Troops, 2);
    EXPECT_EQ(game.Territories[33].Troops, 21);
    EXPECT_TRUE(seen.Shown.Body.ends_with("defender lost 1/0 troops/tanks.\rPlayer 1 is now dead.\r"));
    EXPECT_EQ(seen.Picture, 1);
    EXPECT_EQ(seen.BoardTitle, "Vorlund - Ben wins");
    EXPECT_EQ(seen.Announcements, std::vector<std::string>{"Player 2, Ben, wins the game!"});
    EXPECT_EQ(seen.Calls,
              " CloseReport SetBoardTitle ShowGameOver RefreshMap ShowReport SetBoardTitle Announce");
}

TEST(ComputerTurn, DrawsItsClaimsByTheNumberOfPlayers) {
    struct Row {
        const char* what;
        int players;
        bool firstTurn;
        std::vector<float> draws;
        int claims;
    };
    const std::vector<Row> rows{
        {"two players, lucky", 2, false, {For(1, 3)}, 2},
        {"two players, no luck", 2, false, {For(2, 3), For(1, 5)}, 1},
        {"three players, lucky", 3, false, {For(1, 3), For(1, 5)}, 2},
        {"three players, no luck", 3, false, {For(1, 3), For(2, 5)}, 1},
        {"four players have no such luck", 4, false, {For(1, 3), For(1, 5)}, 1},
        {"everybody in the first turn", 4, true, {}, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        GameState game = ComputerToMove(row.players, 0);
        game.Players[0].FirstTurn = row.firstTurn;
        Give(game, 26, 0, 1);  // South Africa, next to 25 alone, which borders 24
        GiveFactory(game, 26);
        for (int p = 1; p < row.players; ++p) {
            Give(game, 30 + p, p, 1);
        }
        std::vector<float> script{NoBomb};
        script.insert(script.end(), row.draws.begin(), row.draws.end());
        script.insert(script.end(), {Backward, Forward});
        const auto claims = static_cast<std::size_t>(row.claims);
        script.insert(script.end(), claims, NoDefense);
        script.push_back(For(50, 79 - row.claims));
        script.insert(script.end(), claims + 1, For(4, 7));  // far from enemies: two troops and a tank each
        ScriptedRandom random(script);
        Recorder seen;
        ComputerTurn(game, random, seen);
        EXPECT_EQ(game.Territories[24].Occupied, row.claims == 2);
        EXPECT_EQ(game.Territories[25].Troops, 4);
        EXPECT_EQ(game.Territories[26].Troops, 3);
        EXPECT_EQ(game.Territories[26].Tanks, 1);
    }
}

TEST(ComputerTurn, BuildsItsFreeFactoryWhereItIsStrongest) {
    struct Row {
        const char* what;
        int troops26, tanks26, troops34, tanks34;
        int place;
    };
    for (const Row& row :
         {Row{"a tank counts three troops", 2, 1, 4, 0, 26}, Row{"the last among equals", 3, 0, 0, 1, 34},
          Row{"nothing anywhere", 0, 0, 0, 0, 34}}) {
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
        EXPECT_FALSE(game.TerritoryAt(60 - row.place).HasFactory) << row.what;
        EXPECT_EQ(game.Players[0].Factories, 1) << row.what;
        EXPECT_FALSE(game.Players[0].FirstTurn);
    }
}

TEST(Expand, ScansFromEitherEndAndStaysWhereItClaimed) {
    struct Row {
        const char* what;
        float territories;
        float slots;
        std::string changes;
    };
    // Quebec (2, 7, 4) and Japan (33) are the computer's.
    const std::vector<Row> rows{
        {"forward, first slots first", Forward, Forward, "3 Anna 2/0; 8 Anna 2/0 D"},
        {"forward, last slots first", Forward, Backward, "5 Anna 2/0; 8 Anna 2/0 D"},
        {"backward and on from the land just claimed", Backward, Forward, "29 Anna 2/0 D; 34 Anna 2/0"},
        {"the same, last slots first", Backward, Backward, "34 Anna 2/0; 36 Anna 2/0 D"},
    };
    for (const Row& row : rows) {
        GameState game = ComputerToMove(2, 0);
        Give(game, 3, 0, 1);
        Give(game, 34, 0, 1);
        const GameState before = game;
        ScriptedRandom random({row.territories, row.slots, NoDefense, For(2, 6)});
        std::string body;
        EXPECT_EQ(Expand(game, random, 2, body), 2) << row.what;
        EXPECT_EQ(Changes(before, game), row.changes) << row.what;
    }
}

TEST(Reinforce, SharesThePoolOutOverTheBordersWithEnemies) {
    struct Row {
        const char* what;
        int count;  // territories, most of them far from any border of this little world
        int troops;
        int enemies;
        int troopsAfter;
    };
    for (const Row& row :
         {Row{"five territories and two contacts", 5, 7, 2, 13},
          Row{"eleven give a pool of 13", 11, 7, 1, 20}, Row{"one and three give nothing", 1, 7, 3, 7},
          Row{"units stop at the end of their range", 11, 32760, 3, 32767}}) {
        GameState game = ComputerToMove(2, 0);
        Give(game, 10, 0, row.troops);  // the Caribbean: 7, 9, 11
        std::vector<float> script{For(12, 80 - row.count)};
        for (int n = 0; n < 3; ++n) {
            if (n < row.enemies) {
                Give(game, game.Territories[10].Neighbours[static_cast<std::size_t>(n)], 1, 1);
            } else {
                script.insert(script.end(), {For(6, 7), For(2, 3)});  // no luck on the other borders
            }
        }
        const GameState before = game;
        ScriptedRandom random(script);
        Reinforce(game, random, row.count);
        EXPECT_EQ(game.Territories[10].Troops, row.troopsAfter) << row.what;
        EXPECT_EQ(game.Territories[10].Tanks, 0) << row.what;
        EXPECT_EQ(game.Players[0], before.Players[0]) << row.what;
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
    EXPECT_EQ(body, "Player 3, Cleo's, Central America was nuked and lost 10 troops and 1 tanks.\r");
    EXPECT_FALSE(game.Players[0].HasNuke);
}

TEST(AttackByComputer, ChoosesByStrengthAlone) {
    struct Row {
        const char* what;
        int troops, tanks, enemyTroops, enemyTanks, rounds;
    };
    for (const Row& row :
         {Row{"5 against 1: 3 is not above 3", 5, 0, 1, 0, 0},
          Row{"6 against 1: 4 is above 3", 6, 0, 1, 0, 1},
          Row{"a tank counts two for the attacker", 4, 1, 1, 0, 1},
          Row{"and three for the defender", 8, 0, 1, 1, 0}, Row{"and no more than three", 9, 0, 1, 1, 4},
          Row{"three troops never attack", 3, 90, 0, 0, 0}, Row{"four do", 4, 90, 1, 0, 1}}) {
        GameState game = ComputerToMove(2, 0);
        Give(game, 34, 0, row.troops, row.tanks);
        Give(game, 33, 1, row.enemyTroops, row.enemyTanks);
        Give(game, 0, 1, 500);
        game.Territories[33].HasDefense = true;
        ScriptedRandom random(std::vector<float>(static_cast<std::size_t>(row.rounds), 0.0F));
        std::string body;
        EXPECT_FALSE(AttackByComputer(game, random, 2, body)) << row.what;
        EXPECT_EQ(game.Territories[33].Owner, row.rounds > 0 ? 0 : 1) << row.what;
    }
}

TEST(AttackByComputer, GoesByNumberThenBySlotAndOnFromWhatItTook) {
    GameState game = ComputerToMove(3, 0);
    Give(game, 3, 0, 30);  // Quebec: 2, 7, 4
    Give(game, 20, 0, 900);
    Give(game, 19, 1, 1);  // next to 20, and weaker than what 3 meets
    Give(game, 7, 1, 2);
    Give(game, 2, 1, 3);
    Give(game, 6, 1, 4);  // next to 2 in its third slot, 7 is in the fourth
    const GameState before = game;
    ScriptedRandom random(std::vector<float>(3 + 4, 0.0F));
    std::string body;
    AttackByComputer(game, random, 2, body);
    EXPECT_EQ(Changes(before, game), "3 Anna 2/0; 4 Anna 2/0; 7 Anna 30/0; Ben Troops 3");
}

}  // namespace
}  // namespace vorlund
