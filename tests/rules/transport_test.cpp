#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/transport.h"
#include "state/consistent.h"
#include "state/ownership.h"
#include "state/world.h"
#include "tests/rules/refusal_of.h"

namespace vorlund {
namespace {

// Player 1 holds number 5 (factory, defense, 5 troops, 4 tanks) and its neighbour 4; number 16, the other
// neighbour, is free. Player 2 holds number 3, a neighbour of 4.
GameState Convoy() {
    GameState game;
    InitWorld(game);
    game.NumPlayers = 2;
    Claim(game, 4, 0);
    Claim(game, 3, 0);
    Claim(game, 2, 1);
    game.Territories[4].HasFactory = true;
    game.Territories[4].HasDefense = true;
    game.Territories[4].Troops = 5;
    game.Territories[4].Tanks = 4;
    game.Territories[3].Troops = 1;
    game.Players[0].Troops = 6;
    game.Players[0].Tanks = 4;
    game.Players[0].Factories = 1;
    game.Players[0].MovesLeft = 2;
    return game;
}

TEST(Transport, MovesTheForceAndUsesUpAMove) {
    struct Row {
        const char* what;
        TransportEntries entries;
        int to;
        std::int16_t troops;
        std::int16_t tanks;
    };
    const std::vector<Row> rows{
        {"troops into a free neighbour", {"5", "16", "3", ""}, 15, 3, 0},
        {"both into an own neighbour", {"5", "4", "1", "1"}, 3, 1, 1},
        {"2.7 troops are cut down", {"5", "16", "2.7", ""}, 15, 2, 0},
        {"2.5 tanks are rounded down to even", {"5", "16", "", "2.5"}, 15, 0, 2},
        {"3.5 tanks are rounded up to even", {"5", "16", "", "3.5"}, 15, 0, 4},
        {"half a troop moves nobody and still claims", {"5", "16", "0.5", ""}, 15, 0, 0},
        {"numbers are rounded to territories", {"5.4", " 1.6e1 ", "1", ""}, 15, 1, 0},
    };
    for (const Row& row : rows) {
        GameState game = Convoy();
        GameState expected = game;
        Claim(expected, row.to, 0);
        expected.Territories[4].Troops -= row.troops;
        expected.Territories[4].Tanks -= row.tanks;
        expected.TerritoryAt(row.to).Troops += row.troops;
        expected.TerritoryAt(row.to).Tanks += row.tanks;
        expected.Players[0].MovesLeft = 1;
        const auto outcome = Tran(game, true, row.entries);
        ASSERT_EQ(RefusalOf(outcome), "(not refused)") << row.what;
        EXPECT_EQ(std::get<Moved>(outcome).StatusLine,
                  "Move to " + std::string(game.TerritoryAt(row.to).Name) + " was successful.");
        EXPECT_TRUE(game == expected) << row.what;
        EXPECT_TRUE(Consistent(game)) << row.what;
    }
}

TEST(Transport, GivesUpASourceLeftEmpty) {
    GameState game = Convoy();
    ASSERT_TRUE(std::holds_alternative<Moved>(Tran(game, true, {"5", "16", "5", "4"})));
    GameState expected = Convoy();
    Abandon(expected, 4);
    Claim(expected, 15, 0);
    expected.Territories[4].Troops = expected.Territories[4].Tanks = 0;
    expected.Territories[15].Troops = 5;
    expected.Territories[15].Tanks = 4;
    expected.Players[0].Factories = 0;
    expected.Players[0].MovesLeft = 1;
    EXPECT_TRUE(game == expected);
}

TEST(Transport, RefusesInItsOrder) {
    const std::string invalid =
        "You entered invalid transport data...\rCheck the validity of your move and try again.";
    struct Row {
        const char* what;
        TransportEntries entries;
        std::string message;
    };
    const std::string noSource = "Enter a number 1-42 for the territory with the starting units.";
    const std::string noDestination = "Enter a number 1-42 for the destination territory.";
    const std::string noForce = "Enter a number for either troops or tanks.";
    const std::string moreTroops = "You cannot move more troops than you have.";
    const std::string moreTanks = "You cannot move more tanks than you have.";
    const std::string negativeTroops = "You cannot move negative troops.";
    const std::string negativeTanks = "You cannot move negative tanks.";
    const std::vector<Row> rows{
        {"no source", {"", "", "x", ""}, noSource},
        {"no destination", {"x", "", "x", ""}, noDestination},
        {"no force, wherever", {"x", "99", "", "0"}, noForce},
        {"half a tank is none", {"5", "16", "", "0.5"}, noForce},
        {"letters for troops", {"5", "16", "x", "1"}, invalid},
        {"a blank for tanks", {"5", "16", "1", " "}, invalid},
        {"tanks beyond 16 bits", {"5", "16", "1", "4e4"}, invalid},
        {"troops beyond 16 bits", {"5", "16", "4e4", ""}, invalid},
        {"letters for the source", {"x", "16", "1", ""}, invalid},
        {"a destination beyond 16 bits", {"5", "4e4", "1", ""}, invalid},
        {"source 0", {"0", "16", "1", ""}, invalid},
        {"destination 43", {"5", "43", "1", ""}, invalid},
        {"source .5, which is number 1 of nobody", {".5", "2", "1", ""}, invalid},
        {"to where they are", {"5", "5", "1", ""}, invalid},
        {"beyond the neighbours", {"5", "7", "1", ""}, invalid},
        {"from another player's territory", {"3", "4", "1", ""}, invalid},
        {"into another player's territory", {"4", "3", "1", ""}, invalid},
        {"more troops, before more tanks", {"5", "16", "7", "9"}, moreTroops},
        {"more tanks once rounded", {"5", "16", "-1", "4.6"}, moreTanks},
        {"negative troops, before negative tanks", {"5", "16", "-0.5", "-1"}, negativeTroops},
        {"negative tanks", {"5", "16", "1", "-1"}, negativeTanks},
        {"troops that the destination cannot hold", {"5", "4", "3", ""}, invalid},
        {"tanks that the destination cannot hold", {"5", "4", "", "1"}, invalid},
    };
    for (const Row& row : rows) {
        GameState game = Convoy();
        game.Territories[3].Troops = 32765;
        game.Territories[3].Tanks = 32767;
        const GameState before = game;
        EXPECT_EQ(RefusalOf(Tran(game, true, row.entries)), row.message) << row.what;
        EXPECT_TRUE(game == before) << row.what;
    }
}

TEST(Transport, AllowsTwoMovesATurn) {
    GameState game = Convoy();
    EXPECT_EQ(MovesLeftText(game), "You have 2 moves left this turn.");
    EXPECT_TRUE(CanMove(game));
    // The source .5 is number 1 here: transport rounds its numbers before it looks at them.
    Claim(game, 0, 0);
    game.Territories[0].Troops = 2;
    EXPECT_TRUE(std::holds_alternative<Moved>(Tran(game, CanMove(game), {".5", "2", "1", ""})));
    EXPECT_EQ(MovesLeftText(game), "You have 1 move left this turn.");
    EXPECT_TRUE(std::holds_alternative<Moved>(Tran(game, CanMove(game), {"5", "16", "1", ""})));
    EXPECT_EQ(MovesLeftText(game), "You have 0 moves left this turn.");
    EXPECT_FALSE(CanMove(game));
    const GameState before = game;
    EXPECT_TRUE(std::holds_alternative<Beep>(Tran(game, CanMove(game), {"", "", "", ""})));
    EXPECT_TRUE(game == before);
    game.Players[0].MovesLeft = 3;
    EXPECT_EQ(MovesLeftText(game), "You have 0 moves left this turn.");
}

}  // namespace
}  // namespace vorlund
