#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/buy.h"
#include "actions/sell.h"
#include "state/consistent.h"
#include "state/ownership.h"
#include "state/world.h"
#include "tests/rules/recorder.h"
#include "tests/rules/refusal_of.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr const char* NoTransaction = "The data you entered will not make a transaction.";

// Player 1 holds number 7 (factory, 10 troops, 3 tanks) and number 8 (defense, 5 troops), Player 2 number 31.
GameState Market() {
    GameState game;
    InitWorld(game);
    game.NumPlayers = 2;
    Claim(game, 6, 0);
    Claim(game, 7, 0);
    Claim(game, 30, 1);
    game.Territories[6].HasFactory = true;
    game.Territories[6].Troops = 10;
    game.Territories[6].Tanks = 3;
    game.Territories[7].HasDefense = true;
    game.Territories[7].Troops = 5;
    game.Territories[30].HasFactory = true;
    game.Territories[30].Troops = 10;
    Player& player = game.Players[0];
    player.Money = 500;
    player.Oil = 10;
    player.Troops = 15;
    player.Tanks = 3;
    player.Factories = 1;
    return game;
}

struct RefusedRow {
    const char* what;
    TradeEntries entries;
    std::string message;
    std::int16_t money = 500;
};

template <typename Trade>
void ExpectRefused(const std::vector<RefusedRow>& rows, Trade trade) {
    for (const RefusedRow& row : rows) {
        GameState game = Market();
        game.Players[0].Money = row.money;
        const GameState before = game;
        EXPECT_EQ(RefusalOf(trade(game, row.entries)), row.message) << row.what;
        EXPECT_TRUE(game == before) << row.what;
    }
}

struct Change {
    std::int16_t money, troops, tanks, oil;
};

// What a trade with number 7 changes, and the body of its report.
struct TradedRow {
    const char* what;
    TradeEntries entries;
    Change change;
    std::string body;
};

template <typename Trade>
void ExpectTraded(const std::vector<TradedRow>& rows, const std::string& title, Trade trade) {
    for (const TradedRow& row : rows) {
        GameState game = Market();
        GameState expected = game;
        expected.Players[0].Money += row.change.money;
        expected.Players[0].Troops += row.change.troops;
        expected.Players[0].Tanks += row.change.tanks;
        expected.Players[0].Oil += row.change.oil;
        expected.Territories[6].Troops += row.change.troops;
        expected.Territories[6].Tanks += row.change.tanks;
        const auto outcome = trade(game, row.entries);
        ASSERT_EQ(RefusalOf(outcome), "(not refused)") << row.what;
        const Report& report = std::get<Report>(outcome);
        EXPECT_EQ(report.Title, title);
        EXPECT_EQ(report.Headline, "Details on current transaction:");
        EXPECT_EQ(report.Body, row.body) << row.what;
        EXPECT_TRUE(game == expected) << row.what;
    }
}

TEST(Buy, CarriesOutTheWholeOrder) {
    const std::string troops = "You bought 2 Troops for $20 in Midwest USA.\r";
    const std::string tanks = "You bought 2 Tanks for $80 in Midwest USA.\r";
    const std::string oil = "You bought 9 oil barrels for $3.\r\r";
    const std::string spent = "        Total spent: $";
    const std::vector<TradedRow> rows{
        {"everything", {"7", "2", "2", "10"}, {-103, 2, 2, 9}, troops + tanks + oil + spent + "103"},
        {"oil alone, wherever", {"none", "", "0", "9"}, {-3, 0, 0, 9}, oil + spent + "3"},
        {"fractions are cut off", {"7.4", "2.9", "", "2.9"}, {-20, 2, 0, 0}, troops + spent + "20"},
        {"what is negative is left out", {"7", "-3", "2", "-9"}, {-80, 0, 2, 0}, tanks + spent + "80"},
        {"all the money",
         {"7", "", "12", "60"},
         {-500, 0, 12, 60},
         "You bought 12 Tanks for $480 in Midwest USA.\rYou bought 60 oil barrels for $20.\r\r" + spent +
             "500"},
    };
    ExpectTraded(rows, "Vorlund - Buy", Buy);
}

TEST(Buy, RefusesInItsOwnOrder) {
    const std::string range = " you need a valid territory number (1-42).\rNo transaction was made.";
    const std::string noTroops = "To buy Troops the territory must have a factory and be owned by you.";
    const std::string noTanks = "To buy Tanks the territory must have a factory and be owned by you.";
    const std::string tooDear = "The cost of what you are buying exceeds your amount of money.\rYou need $";
    const std::string more = " more to complete that transaction.";
    const std::vector<RefusedRow> rows{
        {"nothing entered", {}, NoTransaction},
        {"oil below a lot", {"7", "", "", "2.99"}, NoTransaction},
        {"negative units", {"7", "-3", "-2", ""}, NoTransaction},
        {"negative units for nowhere", {"", "-3", "-2", ""}, "To buy Troops" + range},
        {"half a troop", {"7", "0.5", "", ""}, NoTransaction},
        {"half a troop for nowhere", {"", "0.5", "", ""}, "To buy Troops" + range},
        {"territory number 0", {"0", "5", "", "3"}, "To buy Troops" + range},
        {"territory number .5", {".5", "5", "", ""}, "To buy Troops" + range},
        {"territory number 43", {"43", "", "5", ""}, "To buy Tanks" + range},
        {"no factory", {"8", "5", "", "3"}, noTroops},
        {"another player's factory", {"31", "0", "1", ""}, noTanks},
        {"letters for troops", {"7", "x", "1", ""}, NoTransaction},
        {"letters for oil, and no factory", {"8", "5", "", "x"}, NoTransaction},
        {"letters for the territory", {"x", "5", "", ""}, NoTransaction},
        {"a blank for tanks", {"7", "5", " ", ""}, NoTransaction},
        {"troops beyond 16 bits", {"7", "4e4", "", ""}, NoTransaction},
        {"troops beyond 16 bits, and no factory", {"8", "4e4", "", ""}, noTroops},
        {"a price beyond 16 bits", {"7", "", "999", ""}, NoTransaction},
        {"a price that would wrap round", {"7", "", "2e3", ""}, NoTransaction},
        {"a price just within 16 bits", {"7", "", "819", ""}, tooDear + "32260" + more},
        {"ten dollars short", {"7", "4", "", ""}, tooDear + "10" + more, 30},
        {"short by more than 16 bits", {"7", "", "819", ""}, tooDear + "33260" + more, -500},
        {"much oil is priced a dollar too high", {"", "", "", "5003"}, tooDear + "1" + more, 1667},
    };
    ExpectRefused(rows, Buy);
}

TEST(Sell, CarriesOutTheWholeSale) {
    const std::string troops = "You sold 4 Troops for $28 in Midwest USA.\r";
    const std::string tanks = "You sold 2 Tanks for $60 in Midwest USA.\r";
    const std::string oil = "You sold 6 oil barrels for $2.\r\r";
    const std::string gained = "        Total money gained: $";
    const std::vector<TradedRow> rows{
        {"four troops", {"7", "4", "", ""}, {28, -4, 0, 0}, troops + gained + "28\r\r"},
        {"everything", {"7", "4.5", "2", "7"}, {90, -4, -2, -6}, troops + tanks + oil + gained + "90\r\r"},
        {"oil alone, wherever", {"none", "0.5", "-1", "6"}, {2, 0, 0, -6}, oil + gained + "2\r\r"},
    };
    ExpectTraded(rows, "Vorlund - Sell", Sell);
}

TEST(Sell, RefusesInItsOwnOrder) {
    const std::string range = " you need a valid territory number (1-42).\rNo transaction was made.";
    const std::string noTroops = "To sell Troops the territory must be owned by you.";
    const std::string noTanks = "To sell Tanks the territory must be owned by you.";
    const std::string fewTroops = "You cannot sell more Troops than you have in a territory.";
    const std::string fewTanks = "You cannot sell more Tanks than you have in a territory.";
    const std::vector<RefusedRow> rows{
        {"nothing entered", {}, NoTransaction},
        {"half a troop from nowhere", {"99", "0.5", "", ""}, NoTransaction},
        {"letters for tanks, from nowhere", {"99", "1", "x", ""}, NoTransaction},
        {"letters for the territory", {"x", "1", "", ""}, NoTransaction},
        {"troops beyond 16 bits, from nowhere", {"99", "9e9", "", ""}, NoTransaction},
        {"territory number 43", {"43", "1", "1", ""}, "To sell Troops" + range},
        {"no territory", {"", "", "1", ""}, "To sell Tanks" + range},
        {"another player's troops", {"31", "1", "", ""}, noTroops},
        {"tanks of nobody's territory", {"1", "", "1", ""}, noTanks},
        {"more troops than there are", {"7", "11", "", ""}, fewTroops},
        {"more tanks than there are", {"7", "1", "4", "99"}, fewTanks},
        {"more oil, though not in whole lots",
         {"", "", "", "11"},
         "You cannot sell more oil barrels than you have."},
        {"more money than a treasury holds", {"7", "4", "", "3"}, NoTransaction, 32740},
    };
    ExpectRefused(rows, Sell);
}

TEST(Buy, RefusesWholeWhatAFieldCannotHold) {
    const std::vector<void (*)(GameState&)> fulls{
        [](GameState& g) { g.Players[0].Troops = 32767; },
        [](GameState& g) { g.Players[0].Tanks = 32767; },
        [](GameState& g) { g.Territories[6].Troops = 32767; },
        [](GameState& g) { g.Territories[6].Tanks = 32767; },
        [](GameState& g) { g.Players[0].Oil = 32765; },
    };
    for (const auto& fill : fulls) {
        GameState game = Market();
        fill(game);
        const GameState before = game;
        EXPECT_EQ(RefusalOf(Buy(game, {"7", "1", "1", "3"})), NoTransaction);
        EXPECT_TRUE(game == before);
    }
}

TEST(Sell, OfOilAloneGivesUpNoTerritory) {
    GameState game = Market();
    Claim(game, 0, 0);
    EXPECT_TRUE(std::holds_alternative<Report>(Sell(game, {"1", "", "", "3"})));
    EXPECT_EQ(game.Territories[0].Owner, 0);
}

TEST(Sell, GivesUpATerritoryLeftEmpty) {
    GameState game = Market();
    game.Territories[6].HasDefense = true;
    const auto outcome = Sell(game, {"7", "10", "3", ""});
    EXPECT_EQ(std::get<Report>(outcome).Body,
              "You sold 10 Troops for $70 in Midwest USA.\rYou sold 3 Tanks for $90 in Midwest USA.\r"
              "        Total money gained: $160\r\r");
    GameState expected = Market();
    Abandon(expected, 6);
    expected.Territories[6].Troops = expected.Territories[6].Tanks = 0;
    expected.Players[0].Money = 660;
    expected.Players[0].Troops = 5;
    expected.Players[0].Tanks = 0;
    expected.Players[0].Factories = 0;
    EXPECT_TRUE(game == expected);
    EXPECT_TRUE(Consistent(game));
}

TEST(Sell, OfTheLastTerritoryIsDeath) {
    GameState game = Market();
    Sell(game, {"7", "10", "3", ""});
    const auto outcome = Sell(game, {"8", "5", "", ""});
    EXPECT_EQ(std::get<Report>(outcome).Body,
              "You sold 5 Troops for $35 in Eastern USA.\r        Total money gained: $35\r\r"
              "You have killed yourself... you have no troops or tanks remaining.");
    EXPECT_TRUE(game.Players[0].IsDead);
    EXPECT_EQ(game.DeadPlayers, 1);
    EXPECT_FALSE(game.GameOver);
    EXPECT_TRUE(Consistent(game));

    // The other one follows: nobody is left.
    game.CurrentPlayer = 1;
    ASSERT_TRUE(std::holds_alternative<NoSurvivor>(Sell(game, {"31", "10", "", ""})));
    EXPECT_EQ(game.Players[1].Money, 70);
    EXPECT_EQ(game.DeadPlayers, 2);
    EXPECT_TRUE(Consistent(game));
    Recorder screens;
    NobodyWins(game, screens);
    EXPECT_EQ(screens.Announcements, std::vector<std::string>{"All players are dead, no one wins..."});
    EXPECT_EQ(AvailableCommands(game), CommandSet::None());
    EXPECT_FALSE(screens.ReportVisible);
}

}  // namespace
}  // namespace vorlund
