#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "state/consistent.h"
#include "state/random.h"
#include "state/typed_number.h"
#include "tests/engine/games.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

TEST(World, HoldsTheMapInItsOwnOrder) {
    const GameState game = FreshGame();
    using Slots = std::array<std::int16_t, NeighbourSlots>;
    EXPECT_EQ(game.Territories[28].Neighbours, (Slots{18, 29, 30, 32, 33, 0}));
    EXPECT_EQ(game.Territories[3].Neighbours, (Slots{2, 7, 4, 99, 99, 99}));
    EXPECT_EQ(game.Territories[27].Name, "Suadi Arabian Territory");
    EXPECT_EQ(game.Territories[41].MapX, 640);
}

TEST(World, ResetClearsWhatAGameChangesAndNothingElse) {
    GameState game = NewGame(2);
    Give(game, 5, 1, 7);
    GiveFactory(game, 5);
    game.Players[1].Money = 12;
    game.Players[1].NuclearLevel = 2;
    game.Players[1].MovesLeft = 1;
    Bury(game, 1);
    const GameState before = game;
    InitWorld(game);
    EXPECT_EQ(Changes(before, game),
              "6 nobody 0/0; Anna FirstTurn 1; Ben Troops 0 NuclearLevel 0 FirstTurn 1 IsDead 0");
    EXPECT_EQ(game.Players[1].Name, "Ben");
}

TEST(CanReach, AsksForOwnershipOccupationAndNeighbourhood) {
    GameState game = NewGame(2);
    Give(game, 5, 0, 1);  // neighbours 1, 6, 8
    Give(game, 6, 0, 1);
    Give(game, 8, 1, 1);
    Give(game, 40, 1, 1);
    struct Row {
        const char* what;
        bool isAttack;
        int from;
        int to;
        bool expected;
    };
    const std::vector<Row> rows{
        {"move into an empty neighbour", false, 5, 1, true},
        {"move into an own neighbour", false, 5, 6, true},
        {"move into another player's neighbour", false, 5, 8, false},
        {"move beyond the neighbours", false, 5, 2, false},
        {"move from a territory of nobody", false, 1, 5, false},
        {"attack another player's neighbour", true, 5, 8, true},
        {"attack an own neighbour", true, 5, 6, false},
        {"attack an empty neighbour", true, 5, 1, false},
        {"attack beyond the neighbours", true, 5, 40, false},
        {"from number 0", true, -1, 8, false},
        {"to number 43", false, 5, 42, false},
        {"to an empty slot's mark", false, 5, NoNeighbour, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CanReach(game, row.isAttack, row.from, row.to), row.expected) << row.what;
    }
}

TEST(TypedNumber, RoundsHalvesToEvenAndCutsDown) {
    const std::vector<std::pair<double, std::optional<std::int16_t>>> rounded{
        {2.5, 2},  {3.5, 4},         {-0.5, 0},          {-1.5, -2},
        {1.51, 2}, {32767.4, 32767}, {-32768.5, -32768}, {32767.5, std::nullopt},
    };
    for (const auto& [value, whole] : rounded) {
        EXPECT_EQ(RoundToInt16(value), whole) << value;
    }
    EXPECT_EQ(CutToInt16(-0.5), -1);
    EXPECT_EQ(CutToInt16(32767.9), 32767);
    EXPECT_EQ(CutToInt16(-32768.1), std::nullopt);
    EXPECT_EQ(ReadQuantity(""), 0.0);
    EXPECT_EQ(ReadQuantity(" "), std::nullopt);
}

TEST(ClockRandom, IsUniformBelowOneAndNeverRepeatsOnReseeding) {
    ClockRandom random;
    std::array<int, 12> seen{};
    for (int i = 0; i < 12000; ++i) {
        ++seen[static_cast<std::size_t>(random.Draw(12))];
    }
    for (const int count : seen) {
        EXPECT_NEAR(count, 1000, 250);
    }
    std::set<float> firsts;
    for (int i = 0; i < 100; ++i) {
        random.Reseed();
        EXPECT_TRUE(firsts.insert(random.Uniform()).second);
    }
}

class JustBelowOne final : public Random {
    float Uniform() override { return std::nextafter(1.0F, 0.0F); }
    void Reseed() override {}
};

TEST(Random, ADrawStaysBelowItsNumber) {
    JustBelowOne random;
    for (int n = 1; n < 100; ++n) {
        EXPECT_EQ(random.Draw(n), n - 1);
    }
}

TEST(Consistent, FindsEachBrokenRecord) {
    struct Row {
        const char* what;
        void (*damage)(GameState&);
    };
    const std::vector<Row> rows{
        {"one player", [](GameState& g) { g.NumPlayers = 1; }},
        {"current player outside", [](GameState& g) { g.CurrentPlayer = 2; }},
        {"owned twice", [](GameState& g) { g.Players[1].Owns[3] = true; }},
        {"owner without the flag", [](GameState& g) { g.Players[0].Owns[3] = false; }},
        {"occupied by nobody", [](GameState& g) { g.Territories[9].Occupied = true; }},
        {"owner that does not play", [](GameState& g) { Claim(g, 9, 2); }},
        {"negative troops", [](GameState& g) { g.Territories[3].Troops = -1; }},
        {"units that nobody owns", [](GameState& g) { g.Territories[9].Tanks = 1; }},
        {"level 4", [](GameState& g) { g.Players[0].NuclearLevel = 4; }},
        {"dead but an owner", [](GameState& g) { Bury(g, 0); }},
        {"alive without land", [](GameState& g) { Abandon(g, 4); }},
        {"the dead miscounted", [](GameState& g) { g.DeadPlayers = 1; }},
    };
    for (const Row& row : rows) {
        GameState game = NewGame(2);
        Give(game, 3, 0, 1);
        Give(game, 4, 1, 0);
        ASSERT_TRUE(Consistent(game));
        row.damage(game);
        EXPECT_FALSE(Consistent(game)) << row.what;
    }
}

}  // namespace
}  // namespace vorlund
