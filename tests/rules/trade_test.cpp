#include "actions/buy.h"
#include "actions/status.h"
#include "tests/rules/orders.h"

namespace vorlund {
namespace {

const std::string NoTransaction = "The data you entered will not make a transaction.";
const std::string OutOfRange = " you need a valid territory number (1-42).\rNo transaction was made.";

TradeEntries EntriesOf(const std::vector<std::string>& typed) {
    return {typed.at(0), typed.at(1), typed.at(2), typed.at(3)};
}

TEST(Orders, Buy) {
    const std::string title = "Vorlund - Buy|Details on current transaction:|";
    const std::string noFactory = " the territory must have a factory and be owned by you.";
    const std::string tooDear = "The cost of what you are buying exceeds your amount of money.\rYou need $";
    const std::string more = " more to complete that transaction.";
    const std::vector<OrderRow> rows{
        {"everything", "7,2,2,10",
         title + "You bought 2 Troops for $20 in Midwest USA.\rYou bought 2 Tanks for $80 in Midwest USA.\r"
                 "You bought 9 oil barrels for $3.\r\r        Total spent: $103",
         "7 Anna 12/5 F; Anna Money 397 Oil 19 Troops 17 Tanks 5"},
        {"oil for all the money, wherever", "none,,,1500",
         title + "You bought 1500 oil barrels for $500.\r\r        Total spent: $500",
         "Anna Money 0 Oil 1510"},
        {"fractions are cut off, what is negative is left out", "7.4,-3,2.9,2.9",
         title + "You bought 2 Tanks for $80 in Midwest USA.\r        Total spent: $80",
         "7 Anna 10/5 F; Anna Money 420 Tanks 5"},
        {"nothing entered", ",,,", NoTransaction},
        {"negative units for nowhere", ",-3,-2,", "To buy Troops" + OutOfRange},
        {"half a troop", "7,0.5,,", NoTransaction},
        {"half a troop without a factory", "8,0.5,,", "To buy Troops" + noFactory},
        {"territory number .5", ".5,5,,", "To buy Troops" + OutOfRange},
        {"territory number 43", "43,,5,", "To buy Tanks" + OutOfRange},
        {"another player's factory", "9,0,1,", "To buy Tanks" + noFactory},
        {"letters for oil, and no factory", "8,5,,x", NoTransaction},
        {"letters for the territory", "x,5,,", NoTransaction},
        {"troops beyond 16 bits", "7,4e4,,", NoTransaction},
        {"a price beyond 16 bits", "7,,820,", NoTransaction},
        {"a price just within 16 bits", "7,,819,", tooDear + "32260" + more},
        {"ten dollars short", "7,4,,", tooDear + "10" + more, "", Money(30)},
        {"much oil is priced a dollar too high", ",,,5003", tooDear + "1" + more, "", Money(1667)},
        {"more troops than the player's total holds", "7,1,1,3", NoTransaction, "",
         Anna(&Player::Troops, 32767)},
        {"more tanks than the territory holds", "7,1,1,3", NoTransaction, "",
         [](GameState& game) { game.Territories[6].Tanks = 32767; }},
        {"more oil than a treasury holds", "7,1,1,3", NoTransaction, "", Anna(&Player::Oil, 32765)},
    };
    ExpectOrders(rows,
                 [](GameState& game, Random&, const auto& typed) { return Buy(game, EntriesOf(typed)); });
}

TEST(Orders, Sell) {
    const std::string title = "Vorlund - Sell|Details on current transaction:|";
    const std::string ten = "You sold 10 Troops for $70 in Midwest USA.\r";
    const std::string total = "        Total money gained: $";
    const auto lastLand = [](GameState& game) {
        Clear(game, 7);
        Station(game, 6, 10);
    };
    const std::vector<OrderRow> rows{
        {"everything, cut down", "7,4.5,2,7",
         title +
             "You sold 4 Troops for $28 in Midwest USA.\rYou sold 2 Tanks for $60 in Midwest USA.\r"
             "You sold 6 oil barrels for $2.\r\r" +
             total + "90\r\r",
         "7 Anna 6/1 F; Anna Money 590 Oil 4 Troops 11 Tanks 1"},
        {"all the oil, wherever, even where nothing stands", "1,0.5,-1,9",
         title + "You sold 9 oil barrels for $3.\r\r" + total + "3\r\r", "Anna Money 503 Oil 0",
         [](GameState& game) { Claim(game, 0, 0), game.Players[0].Oil = 9; }},
        {"all units, which gives the territory up", "7,10,3,",
         title + ten + "You sold 3 Tanks for $90 in Midwest USA.\r" + total + "160\r\r",
         "7 nobody 0/0; Anna Money 660 Troops 5 Tanks 0 Factories 0"},
        {"the last units of all", "7,10,,",
         title + ten + total + "70\r\rYou have killed yourself... you have no troops or tanks remaining.",
         "7 nobody 0/0; Anna Money 570 Troops 0 Factories 0 IsDead 1", lastLand},
        {"the last units of the last survivor", "7,10,,", "(nobody is left)",
         "7 nobody 0/0; Anna Money 570 Troops 0 Factories 0 IsDead 1",
         [&](GameState& game) {
             lastLand(game);
             for (const int t : {8, 19, 30}) {
                 Clear(game, t);
             }
             Bury(game, 1);
             Bury(game, 2);
         }},
        {"nothing entered", ",,,", NoTransaction},
        {"half a troop from nowhere", "99,0.5,,", NoTransaction},
        {"letters for tanks, from nowhere", "99,1,x,", NoTransaction},
        {"letters for the territory", "x,1,,", NoTransaction},
        {"territory number 43", "43,1,1,", "To sell Troops" + OutOfRange},
        {"no territory", ",,1,", "To sell Tanks" + OutOfRange},
        {"another player's", "9,1,,", "To sell Troops the territory must be owned by you."},
        {"nobody's", "1,,1,", "To sell Tanks the territory must be owned by you."},
        {"a troop too many", "7,11,,", "You cannot sell more Troops than you have in a territory."},
        {"a tank too many", "7,1,4,99", "You cannot sell more Tanks than you have in a territory."},
        {"more oil, though not in whole lots", ",,,11", "You cannot sell more oil barrels than you have."},
        {"more money than a treasury holds", "7,4,,3", NoTransaction, "", Money(32740)},
    };
    ExpectOrders(rows,
                 [](GameState& game, Random&, const auto& typed) { return Sell(game, EntriesOf(typed)); });
}

TEST(Orders, BuildAndUpgrade) {
    const std::string noNumber = " requires a valid territory number (1-42).\rNo transaction was made.";
    const std::string taken = "The territory must be owned by you\rand not already have ";
    const std::string poor = "You do not have enough money.\r";
    const std::vector<OrderRow> factories{
        {"a factory", " 7.6 ", "Factory built in Eastern USA.\r",
         "8 Anna 5/0 FD; Anna Money 320 Factories 2"},
        {"a half, which is rounded to 0", ".5", "Building a factory" + noNumber, "", Money(0)},
        {"beyond 16 bits", "4e4", "Building a factory" + noNumber},
        {"nothing typed", "", "Building a factory" + noNumber},
        {"nobody's, 42.5 being rounded to 42", "42.5", taken + "a factory."},
        {"built already, and no money", "7", taken + "a factory.", "", Money(0)},
        {"a dollar short", "8", poor + "A factory requires $180.", "", Money(179)},
    };
    ExpectOrders(factories, [](GameState& game, Random&, const auto& typed) { return Fact(game, typed[0]); });
    const std::vector<OrderRow> defenses{
        {"a defense for all the money", "7", "Defense built in Midwest USA.\r",
         "7 Anna 10/3 FD; Anna Money 0", Money(100)},
        {"number 43", "43", "Building defense" + noNumber},
        {"another player's", "9", taken + "defense."},
        {"a dollar short", "7", poor + "Defense requires $100.", "", Money(99)},
    };
    ExpectOrders(defenses, [](GameState& game, Random&, const auto& typed) { return Def(game, typed[0]); });

    const std::vector<OrderRow> upgrades{
        {"Economy", "0", "Level 1 Economy upgrade complete.\r", "Anna Money 350 EconomyLevel 1"},
        {"Nuclear for all the money", "2", "Level 1 Nuclear upgrade complete.\r",
         "Anna Money 0 NuclearLevel 1", Money(100)},
        {"level 3 of Warfare is too dear", "1", "You do not have enough money for this upgrade.", "",
         Anna(&Player::WarfareLevel, 2)},
        {"there is no level 4", "2", "(nothing)", "", Anna(&Player::NuclearLevel, 3)},
    };
    ExpectOrders(upgrades, [](GameState& game, Random&, const auto& typed) {
        return RaiseLevel(game, static_cast<Track>(std::stoi(typed[0])));
    });
}

TEST(Status, ShowsTheCurrentPlayer) {
    GameState game = Front();
    game.CurrentPlayer = 1;
    Player& ben = game.Players[1];
    ben.Money = -45;
    ben.Oil = 12;
    ben.DebtTurns = 4;
    ben.EconomyLevel = 1;
    ben.WarfareLevel = 3;
    ben.MovesLeft = 0;
    const auto told = [&] {
        const StatusLines s = DescribeStatus(game);
        return s.Title + "|" + s.Name + "|" + s.Money + "|" + s.Oil + "|" + s.Troops + "|" + s.Tanks + "|" +
               s.Factories + "|" + s.Debt + "|" + s.Economy + "|" + s.Warfare + "|" + s.Nuclear + "|" +
               s.AttacksMoves + "|" + s.Upkeep;
    };
    EXPECT_EQ(told(), "Vorlund - Player 2 status|Ben|$-45|12|6|1|1|4|1|3|0\rDeveloping nuke...|2 / 0|+ $75");
    ben.HasNuke = true;
    ben.NuclearLevel = 2;
    ben.Troops = 50;
    EXPECT_TRUE(told().ends_with("|2\rNuke awaiting use...|2 / 0|- $13")) << told();
    ben.Troops = 43;
    ben.Factories = 2;
    EXPECT_TRUE(told().ends_with("- $0")) << told();
    EXPECT_EQ(MoneyLine(game), "You have $-45 to spend.");
    EXPECT_EQ(StatusOf(game, Track::Nuclear),
              (TrackStatus{"Current Nuclear upgrade: 2\rNext upgrade cost: $700", true}));
    EXPECT_EQ(StatusOf(game, Track::Warfare),
              (TrackStatus{"Current Warfare upgrade: 3\rNext upgrade cost: $max", false}));
}

}  // namespace
}  // namespace vorlund
