#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "state/consistent.h"
#include "state/int16.h"
#include "state/ownership.h"
#include "state/random.h"
#include "state/typed_number.h"
#include "state/world.h"

namespace vorlund {
namespace {

GameState NewWorld() {
    GameState game;
    InitWorld(game);
    game.NumPlayers = 2;
    return game;
}

TEST(World, HoldsTheMapInItsOwnOrder) {
    const GameState game = NewWorld();
    using Slots = std::array<std::int16_t, NeighbourSlots>;
    EXPECT_EQ(game.Territories[28].Neighbours, (Slots{18, 29, 30, 32, 33, 0}));
    EXPECT_EQ(game.Territories[3].Neighbours, (Slots{2, 7, 4, 99, 99, 99}));
    EXPECT_EQ(game.Territories[26].Neighbours, (Slots{25, 99, 99, 99, 99, 99}));
    EXPECT_EQ(game.Territories[27].Name, "Suadi Arabian Territory");
    EXPECT_EQ(game.Territories[41].MapX, 640);
}

TEST(World, ResetClearsWhatAGameChangesAndNothingElse) {
    GameState game = NewWorld();
    Claim(game, 5, 1);
    game.Territories[5].HasFactory = true;
    game.Territories[5].Troops = 7;
    Player& player = game.Players[1];
    player.Name = "Anna";
    player.Money = 12;
    player.Factories = 1;
    player.MovesLeft = 1;
    player.Troops = 7;
    player.IsDead = true;
    player.FirstTurn = false;
    game.DeadPlayers = 1;

    InitWorld(game);

    GameState expected = NewWorld();
    expected.Players[1].Name = "Anna";
    expected.Players[1].Money = 12;
    expected.Players[1].Factories = 1;
    expected.Players[1].MovesLeft = 1;
    expected.DeadPlayers = 1;
    EXPECT_EQ(game, expected);
}

TEST(CanReach, AsksForOwnershipOccupationAndNeighbourhood) {
    GameState game = NewWorld();
    Claim(game, 5, 0);  // neighbours 1, 6, 8
    Claim(game, 6, 0);
    Claim(game, 8, 1);
    Claim(game, 40, 1);
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
        {"move to where one is", false, 5, 5, false},
        {"move beyond the neighbours", false, 5, 2, false},
        {"move from a territory of nobody", false, 1, 5, false},
        {"attack another player's neighbour", true, 5, 8, true},
        {"attack an own neighbour", true, 5, 6, false},
        {"attack an empty neighbour", true, 5, 1, false},
        {"attack from another player's territory", true, 8, 5, false},
        {"attack beyond the neighbours", true, 5, 40, false},
        {"from number 0", true, -1, 8, false},
        {"to number 43", false, 5, 42, false},
        {"to an empty slot's mark", false, 5, NoNeighbour, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CanReach(game, row.isAttack, row.from, row.to), row.expected) << row.what;
    }
}

TEST(ReadNumber, TakesDecimalNumbersAndNothingElse) {
    const std::vector<std::pair<std::string, double>> numbers{
        {"7", 7},     {" 42 ", 42},  {"+5", 5},    {"-3", -3},     {".5", 0.5}, {"5.", 5},
        {"2.5", 2.5}, {"2e3", 2000}, {"4E4", 4e4}, {"1e-2", 0.01}, {"007", 7},  {"-.5", -0.5},
    };
    for (const auto& [text, value] : numbers) {
        EXPECT_EQ(ReadNumber(text), value) << text;
    }
    for (const char* text :
         {"",  " ",  "abc", "1 2",   "0x10", "inf", "nan",      "1,5", "1'000", "+-5", "--5",
          ".", "e5", "5e",  "1e999", "\t5",  "5\n", "\xD9\xA3", "$5",  "-",     "+"}) {
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
    }
    EXPECT_EQ(ReadQuantity(""), 0.0);
    EXPECT_EQ(ReadQuantity(" "), std::nullopt);
}

TEST(TypedNumber, RoundsHalvesToEvenAndCutsDown) {
    const std::vector<std::pair<double, std::int16_t>> rounded{{2.5, 2},         {3.5, 4},          {-0.5, 0},
                                                               {-1.5, -2},       {1.49, 1},         {1.51, 2},
                                                               {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, whole] : rounded) {
        EXPECT_EQ(RoundToInt16(value), whole) << value;
    }
    EXPECT_EQ(RoundToInt16(32767.5), std::nullopt);
    EXPECT_EQ(CutToInt16(2.9), 2);
    EXPECT_EQ(CutToInt16(-0.5), -1);
    EXPECT_EQ(CutToInt16(32767.9), 32767);
    EXPECT_EQ(CutToInt16(4e4), std::nullopt);
    EXPECT_EQ(CutToInt16(-32768.1), std::nullopt);
    EXPECT_EQ(TerritoryIndex(2.5), 2);
    EXPECT_EQ(TerritoryIndex(1.5), 0);
    EXPECT_EQ(TerritoryIndex(.5), 0);
    EXPECT_EQ(TerritoryIndex(1e9), std::nullopt);
}

TEST(Int16, FieldsStopAtTheEndsOfTheirRange) {
    std::int16_t field = 32000;
    Add(field, 1000);
    EXPECT_EQ(field, 32767);
    Add(field, -70000);
    EXPECT_EQ(field, -32768);
}

TEST(ClockRandom, IsUniformBelowOneAndNeverRepeatsOnReseeding) {
    ClockRandom random;
    std::array<int, 12> seen{};
    for (int i = 0; i < 12000; ++i) {
        ++seen[static_cast<std::size_t>(random.Draw(12))];
    }
    for (int count : seen) {
        EXPECT_NEAR(count, 1000, 250);
    }
    std::vector<float> firsts;
    for (int i = 0; i < 100; ++i) {
        random.Reseed();
        firsts.push_back(random.Uniform());
        EXPECT_LT(firsts.back(), 1.0F);
    }
    std::sort(firsts.begin(), firsts.end());
    EXPECT_EQ(std::adjacent_find(firsts.begin(), firsts.end()), firsts.end());
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
    GameState sound = NewWorld();
    Claim(sound, 3, 0);
    Claim(sound, 4, 1);
    ASSERT_TRUE(Consistent(sound));
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
        {"dead but an owner",
         [](GameState& g) {
             g.Players[0].IsDead = true;
             g.DeadPlayers = 1;
         }},
        {"alive without land", [](GameState& g) { Abandon(g, 4); }},
        {"the dead miscounted", [](GameState& g) { g.DeadPlayers = 1; }},
    };
    for (const Row& row : rows) {
        GameState game = sound;
        row.damage(game);
        EXPECT_FALSE(Consistent(game)) << row.what;
    }
}

}  // namespace
}  // namespace vorlund
