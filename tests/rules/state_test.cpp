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
        ++seen.at(static_cast<std::size_t>(random.Draw(12)));
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
