#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/buy.h"
#include "actions/status.h"
#include "actions/upgrade.h"
#include "state/ownership.h"
#include "state/world.h"
#include "tests/rules/refusal_of.h"

namespace vorlund {
namespace {

// Player 1 holds number 12 (bare) and number 13 (factory and defense); Player 2 holds number 14.
GameState Workshop(std::int16_t money) {
    GameState game;
    InitWorld(game);
    game.NumPlayers = 2;
    Claim(game, 11, 0);
    Claim(game, 12, 0);
    Claim(game, 13, 1);
    game.Territories[12].HasFactory = true;
    game.Territories[12].HasDefense = true;
    game.Players[0].Money = money;
    game.Players[0].Factories = 1;
    return game;
}

TEST(Upgrade, RaisesEachTrackThriceForThePriceOfTheLevelReached) {
    struct Row {
        Track track;
        const char* name;
        std::int16_t Player::*level;
        std::vector<std::int16_t> prices;
    };
    const std::vector<Row> rows{
        {Track::Economy, "Economy", &Player::EconomyLevel, {150, 300, 450}},
        {Track::Warfare, "Warfare", &Player::WarfareLevel, {200, 400, 600}},
        {Track::Nuclear, "Nuclear", &Player::NuclearLevel, {100, 300, 700}},
    };
    for (const Row& row : rows) {
        const std::string name = row.name;
        GameState game = Workshop(0);
        for (std::int16_t level = 0; level < 3; ++level) {
            const std::int16_t price = row.prices[static_cast<std::size_t>(level)];
            EXPECT_EQ(StatusOf(game, row.track),
                      (TrackStatus{"Current " + name + " upgrade: " + std::to_string(level) +
                                       "\rNext upgrade cost: $" + std::to_string(price),
                                   true}));
            game.Players[0].Money = static_cast<std::int16_t>(price - 1);
            GameState expected = game;
            EXPECT_EQ(RefusalOf(RaiseLevel(game, row.track)),
                      "You do not have enough money for this upgrade.");
            EXPECT_TRUE(game == expected) << name << " one dollar short of " << price;

            game.Players[0].Money = price;
            expected.Players[0].Money = 0;
            ++(expected.Players[0].*row.level);
            const auto outcome = RaiseLevel(game, row.track);
            ASSERT_TRUE(std::holds_alternative<Purchase>(outcome)) << name << " for " << price;
            EXPECT_EQ(std::get<Purchase>(outcome).Message,
                      "Level " + std::to_string(level + 1) + " " + name + " upgrade complete.\r");
            EXPECT_TRUE(game == expected) << name << " for " << price;
        }
        EXPECT_EQ(StatusOf(game, row.track),
                  (TrackStatus{"Current " + name + " upgrade: 3\rNext upgrade cost: $max", false}));
        const GameState before = game;
        EXPECT_TRUE(std::holds_alternative<Nothing>(RaiseLevel(game, row.track)));
        EXPECT_TRUE(game == before);
    }
}

TEST(Construction, BuildsOnceInAnOwnTerritory) {
    for (const char* number : {"12", " 12.4 ", "11.5"}) {
        GameState game = Workshop(180);
        GameState expected = Workshop(0);
        expected.Territories[11].HasFactory = true;
        expected.Players[0].Factories = 2;
        EXPECT_EQ(std::get<Purchase>(Fact(game, number)).Message, "Factory built in Colombian Territory.\r")
            << number;
        EXPECT_TRUE(game == expected) << number;
    }
    GameState game = Workshop(150);
    GameState expected = Workshop(50);
    expected.Territories[11].HasDefense = true;
    EXPECT_EQ(std::get<Purchase>(Def(game, "12")).Message, "Defense built in Colombian Territory.\r");
    EXPECT_TRUE(game == expected);
    EXPECT_EQ(MoneyLine(game), "You have $50 to spend.");
}

TEST(Construction, RefusesInItsOrder) {
    struct Row {
        const char* what;
        std::string number;
        std::int16_t money;
        std::string factoryMessage;
        std::string defenseMessage;
    };
    const std::string noNumber = " requires a valid territory number (1-42).\rNo transaction was made.";
    const std::string factoryNumber = "Building a factory" + noNumber;
    const std::string defenseNumber = "Building defense" + noNumber;
    const std::string taken = "The territory must be owned by you\rand not already have ";
    const std::string poor = "You do not have enough money.\r";
    const std::vector<Row> rows{
        {"nothing typed", "", 999, factoryNumber, defenseNumber},
        {"a blank", " ", 999, factoryNumber, defenseNumber},
        {"letters", "x", 999, factoryNumber, defenseNumber},
        {"number 0 without money", "0", 0, factoryNumber, defenseNumber},
        {"a half, which is rounded to 0", ".5", 999, factoryNumber, defenseNumber},
        {"number 43", "43", 999, factoryNumber, defenseNumber},
        {"42.6, which is rounded to 43", "42.6", 999, factoryNumber, defenseNumber},
        {"beyond 16 bits", "4e4", 999, factoryNumber, defenseNumber},
        {"another player's", "14", 999, taken + "a factory.", taken + "defense."},
        {"nobody's, 42.5 being rounded to 42", "42.5", 999, taken + "a factory.", taken + "defense."},
        {"built already, and no money", "13", 0, taken + "a factory.", taken + "defense."},
        {"a dollar short of a defense", "12", 99, poor + "A factory requires $180.",
         poor + "Defense requires $100."},
    };
    for (const Row& row : rows) {
        GameState game = Workshop(row.money);
        const GameState before = game;
        EXPECT_EQ(RefusalOf(Fact(game, row.number)), row.factoryMessage) << row.what;
        EXPECT_EQ(RefusalOf(Def(game, row.number)), row.defenseMessage) << row.what;
        EXPECT_TRUE(game == before) << row.what;
    }
    GameState game = Workshop(179);
    EXPECT_EQ(RefusalOf(Fact(game, "12")), poor + "A factory requires $180.");
}

TEST(Status, ShowsTheCurrentPlayer) {
    GameState game = Workshop(-45);
    game.CurrentPlayer = 1;
    Player& player = game.Players[1];
    player.Name = "Anna";
    player.Money = -45;
    player.Oil = 12;
    player.Troops = 10;
    player.Tanks = 4;
    player.Factories = 1;
    player.DebtTurns = 2;
    player.EconomyLevel = 3;
    player.WarfareLevel = 1;
    player.AttacksLeft = 2;
    player.MovesLeft = 1;
    StatusLines lines = DescribeStatus(game);
    EXPECT_EQ(lines.Title, "Vorlund - Player 2 status");
    EXPECT_EQ(lines.Name, "Anna");
    EXPECT_EQ(lines.Money, "$-45");
    EXPECT_EQ(lines.Oil, "12");
    EXPECT_EQ(lines.Troops, "10");
    EXPECT_EQ(lines.Tanks, "4");
    EXPECT_EQ(lines.Factories, "1");
    EXPECT_EQ(lines.Debt, "2");
    EXPECT_EQ(lines.Economy, "3");
    EXPECT_EQ(lines.Warfare, "1");
    EXPECT_EQ(lines.Nuclear, "0\rDeveloping nuke...");
    EXPECT_EQ(lines.AttacksMoves, "2 / 1");
    EXPECT_EQ(lines.Upkeep, "+ $31");
    player.NuclearLevel = 2;
    player.HasNuke = true;
    EXPECT_EQ(DescribeStatus(game).Nuclear, "2\rNuke awaiting use...");
}

TEST(Status, EstimatesTheUpkeepByItsOwnFormula) {
    struct Row {
        const char* what;
        std::vector<int> territories;
        std::int16_t economy;
        std::int16_t troops;
        const char* expected;
    };
    const std::vector<Row> rows{
        {"no land", {}, 0, 10, "- $21"},
        {"one territory of value 6", {0}, 0, 10, "+ $19"},
        {"the same at Economy level 3", {0}, 3, 10, "+ $31"},
        {"a share of a dollar is cut off", {5}, 1, 10, "+ $28"},
        {"values 6 and 7", {0, 5}, 0, 10, "+ $64"},
        {"a balance of nothing", {5}, 0, 22, "- $0"},
    };
    for (const Row& row : rows) {
        GameState game;
        InitWorld(game);
        for (int t : row.territories) {
            Claim(game, t, 0);
        }
        game.Players[0].EconomyLevel = row.economy;
        game.Players[0].Troops = row.troops;
        game.Players[0].Factories = 1;
        EXPECT_EQ(DescribeStatus(game).Upkeep, row.expected) << row.what;
    }
}

}  // namespace
}  // namespace vorlund
