#include <gtest/gtest.h>

#include <vector>

#include "actions/strike.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

GameState AnnaHoldsABomb(int targetTroops, int targetTanks) {
    GameState game = NewGame(2);
    Give(game, 5, 0, 3);
    Give(game, 0, 1, targetTroops, targetTanks);
    Give(game, 41, 1, 1);
    game.Players[0].HasNuke = true;
    return game;
}

TEST(Strike, RefusesInOrderAndChangesNothing) {
    const std::string range = "The country number must be 1-42.";
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", "Enter a number 1-42 for the country to nuke."},
        {" ", range},
        {"one", range},
        {"42.5", range},
        {".9", range},
        {"-1", range},
        {"9e9", range},
        {"42x", range},
        {"2", "You may not nuke an unoccupied territory."},
        {"6", "You may not nuke your own territory."},
    };
    for (const auto& [entry, message] : rows) {
        GameState game = AnnaHoldsABomb(7, 9);
        const GameState before = game;
        const auto outcome = Strike(game, true, entry);
        ASSERT_TRUE(std::holds_alternative<Refusal>(outcome)) << entry;
        EXPECT_EQ(std::get<Refusal>(outcome).Message, message) << entry;
        EXPECT_EQ(game, before) << entry;
    }
}

TEST(Strike, OnlyBeepsWithoutTheCommand) {
    GameState game = AnnaHoldsABomb(7, 9);
    const GameState before = game;
    EXPECT_TRUE(std::holds_alternative<Beep>(Strike(game, false, "1")));
    EXPECT_EQ(game, before);
}

TEST(Strike, KillsHalfTheTroopsAndAQuarterOfTheTanks) {
    struct Row {
        const char* entry;
        int troops;
        int tanks;
        int troopLoss;
        int tankLoss;
    };
    for (const Row& row : {Row{"1", 7, 9, 3, 2}, Row{"1.4", 1, 3, 0, 0}, Row{"1.5", 20, 4, 10, 1},
                           Row{" 1 ", 32766, 32767, 16383, 8191}}) {
        GameState game = AnnaHoldsABomb(row.troops, row.tanks);
        game.Territories[0].HasDefense = true;
        GiveFactory(game, 0);
        GameState expected = game;
        Add(expected.Territories[0].Troops, -row.troopLoss);
        Add(expected.Territories[0].Tanks, -row.tankLoss);
        Add(expected.Players[1].Troops, -row.troopLoss);
        Add(expected.Players[1].Tanks, -row.tankLoss);
        expected.Players[0].HasNuke = false;

        const auto outcome = Strike(game, true, row.entry);

        ASSERT_TRUE(std::holds_alternative<Report>(outcome)) << row.entry;
        EXPECT_EQ(game, expected) << row.entry;
        EXPECT_EQ(std::get<Report>(outcome),
                  (Report{"Vorlund - Nuclear Strike Results",
                          "Your nuclear attack upon Alaskan Territory was successful.",
                          "Casualties for Player 2, Ben:\r        Troops: " + std::to_string(row.troopLoss) +
                              "\r        Tanks: " + std::to_string(row.tankLoss) + "\r\r"}))
            << row.entry;
    }
}

TEST(Strike, SaysWhetherABombIsReady) {
    GameState game = AnnaHoldsABomb(1, 1);
    EXPECT_EQ(BombText(game), "You have a nuclear bomb to use.");
    game.Players[0].HasNuke = false;
    EXPECT_EQ(BombText(game), "You do not have a nuclear bomb.");
}

}  // namespace
}  // namespace vorlund
