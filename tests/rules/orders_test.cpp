// SPDX-License-Identifier: MIT
#include <regex>

#include "tests/rules/play.h"

namespace vorlund {
namespace {

/// Anna's orders in one world: her territories 7 and 8 are neighbours, Ben's 9 is a neighbour of 7, 6 is
/// unoccupied.
void ExpectOrders(const std::vector<Row>& rows) {
    ExpectSteps(
        "; 7 Anna 10/3F; 8 Anna 5/0D; 9 Ben 2/1F; 20 Cleo 1/0; 31 Ben 4/0; Anna Money 500 Oil 10 HasNuke 1; ",
        rows);
}

const std::string NoTransaction = "The data you entered will not make a transaction.";
const std::string OutOfRange = " you need a valid territory number (1-42).\rNo transaction was made.";
const std::string Killed = "You have killed yourself... you have no troops or tanks remaining.";
const std::string NoForce = "Enter a number for either troops or tanks.";

TEST(Orders, Buy) {
    const std::string title = "Vorlund - Buy|Details on current transaction:|";
    const std::string tooDear = "The cost of what you are buying exceeds your amount of money.\rYou need $";
    const std::string more = " more to complete that transaction.";
    ExpectOrders({
        {"buy,7,2,2,10",
         title + "You bought 2 Troops for $20 in Midwest USA.\rYou bought 2 Tanks for $80 in Midwest USA.\r"
                 "You bought 9 oil barrels for $3.\r\r        Total spent: $103",
         "7 Anna 12/5F; Anna Money 397 Oil 19 Tanks 5 Troops 17"},
        {"buy,none,,,1500", title + "You bought 1500 oil barrels for $500.\r\r        Total spent: $500",
         "Anna Money 0 Oil 1510"},
        // Fractions are rounded down, negative quantities are 0.
        {"buy,7.4,-3,2.9,2.9", title + "You bought 2 Tanks for $80 in Midwest USA.\r        Total spent: $80",
         "7 Anna 10/5F; Anna Money 420 Tanks 5"},
        {"buy|buy,7,0.5|buy,8,5,,x|buy,x,5|buy,7,4e4|buy,7,,820", NoTransaction},
        {"buy,8,,-0.5|buy,9,,1", "To buy Tanks the territory must have a factory and be owned by you."},
        {"buy,,-3|buy,.5,5,5|buy,43,5", "To buy Troops" + OutOfRange},
        {"buy,7,,819", tooDear + "32260" + more},  // the highest price that fits 16 bits
        {"buy,,,,5003", tooDear + "1" + more, "",
         "Anna Money 1667"},  // the price of oil before rounding to lots
        // A total, a territory or the oil would not fit 16 bits.
        {"buy,7,1,1,3", NoTransaction, "", "Anna Troops 32767"},
        {"buy,7,1,1,3", NoTransaction, "", "7 Anna 1/32767F; Anna Tanks 0"},
        {"buy,7,1,1,3", NoTransaction, "", "Anna Oil 32765"},
    });
}

TEST(Orders, Sell) {
    const std::string title = "Vorlund - Sell|Details on current transaction:|";
    const std::string ten = "You sold 10 Troops for $70 in Midwest USA.\r";
    const std::string total = "        Total money gained: $";
    ExpectOrders({
        {"sell,7,4.5,2,7",
         title + "You sold 4 Troops for $28 in Midwest USA.\rYou sold 2 Tanks for $60 in Midwest USA.\r"
                 "You sold 6 oil barrels for $2.\r\r        Total money gained: $90\r\r",
         "7 Anna 6/1F; Anna Money 590 Oil 4 Tanks 1 Troops 11"},
        {"sell,1,0.5,-1,9", title + "You sold 9 oil barrels for $3.\r\r" + total + "3\r\r",
         "Anna Money 503 Oil 0",
         "1 Anna 0/0; Anna Oil 9"},  // units are not sold, so the empty territory is kept
        {"sell,7,10,3", title + ten + "You sold 3 Tanks for $90 in Midwest USA.\r" + total + "160\r\r",
         "7 nobody 0/0; Anna Factories 0 Money 660 Tanks 0 Troops 5"},
        {"sell,7,10", title + ten + total + "70\r\r" + Killed,
         "7 nobody 0/0; Anna Factories 0 IsDead 1 Money 570 Troops 0", "7 Anna 10/0F; 8 Cleo 5/0"},
        {"sell|sell,99,0.5|sell,99,1,x|sell,x,1", NoTransaction},
        {"sell,,,1|sell,43,,1", "To sell Tanks" + OutOfRange},
        {"sell,9,,1|sell,1,,1", "To sell Tanks the territory must be owned by you."},
        {"sell,7,11", "You cannot sell more Troops than you have in a territory."},
        {"sell,7,1,4,99", "You cannot sell more Tanks than you have in a territory."},
        {"sell,,,,11", "You cannot sell more oil barrels than you have."},  // although only 9 would be sold
        {"sell,7,4,,3", NoTransaction, "", "Anna Money 32740"},             // the money would not fit
    });
    Play alone(2, "7 Anna 10/0F; Ben IsDead 1", "");
    alone.Then("sell,7,10", "(nobody is left)", "7 nobody 0/0; Anna Factories 0 IsDead 1 Money 70 Troops 0");
    EXPECT_TRUE(alone.Game.GameOver);
}

TEST(Orders, BuildAndUpgrade) {
    const std::string noNumber = " requires a valid territory number (1-42).\rNo transaction was made.";
    const std::string taken = "The territory must be owned by you\rand not already have ";
    ExpectOrders({
        {"factory, 7.6 ", "Factory built in Eastern USA.\r", "8 Anna 5/0FD; Anna Factories 2 Money 320"},
        {"factory|factory,.5|factory,4e4", "Building a factory" + noNumber, "", "Anna Money 0"},
        {"factory,7|factory,42.5", taken + "a factory.", "", "Anna Money 0"},
        {"factory,8", "You do not have enough money.\rA factory requires $180.", "", "Anna Money 179"},
        {"defense,7", "Defense built in Midwest USA.\r", "7 Anna 10/3FD; Anna Money 0", "Anna Money 100"},
        {"defense,7", "You do not have enough money.\rDefense requires $100.", "", "Anna Money 99"},
        {"defense,43", "Building defense" + noNumber},
        {"defense,9", taken + "defense."},
        {"upgrade,0", "Level 1 Economy upgrade complete.\r", "Anna EconomyLevel 1 Money 350"},
        {"upgrade,2", "Level 1 Nuclear upgrade complete.\r", "Anna Money 0 NuclearLevel 1", "Anna Money 100"},
        {"upgrade,1", "You do not have enough money for this upgrade.", "", "Anna WarfareLevel 2"},
        {"upgrade,2", "(nothing)", "", "Anna NuclearLevel 3"},  // the highest level
    });
    std::string prices;
    for (const Track track : {Track::Economy, Track::Warfare, Track::Nuclear}) {
        for (const std::string level : {"0", "1", "2", "3"}) {
            const GameState game = NewGame(
                2, "Anna EconomyLevel " + level + " WarfareLevel " + level + " NuclearLevel " + level);
            prices += StatusOf(game, track).substr(std::string("Current Economy upgrade: 0").size());
        }
    }
    EXPECT_EQ(std::regex_replace(prices, std::regex("\rNext upgrade cost: "), ""),
              "$150$300$450$max$200$400$600$max$100$300$700$max");
}

TEST(Orders, Transport) {
    const std::string moved = "Move to Western USA was successful.";
    const std::string invalid =
        "You entered invalid transport data...\rCheck the validity of your move and try again.";
    ExpectOrders({
        // Troops are rounded down, tanks to the nearest number, halves to even.
        {"move,7,6,2.7,2.5", moved, "6 Anna 2/2; 7 Anna 8/1F; Anna MovesLeft 1"},
        {"move,7.4, 0.8e1 ,1,1.5", "Move to Eastern USA was successful.",
         "7 Anna 9/1F; 8 Anna 6/2D; Anna MovesLeft 1"},
        {"move,7,6,0.5", moved,
         "6 Anna 0/0; Anna MovesLeft 1"},  // no unit moves, but the territory is claimed
        {"move,7,6,10,3", moved, "6 Anna 10/3; 7 nobody 0/0; Anna Factories 0 MovesLeft 1"},
        {"move,.5,2,1", "Move to Vancouver Territory was successful.",
         "1 Anna 1/0; 2 Anna 1/0; Anna MovesLeft 1", "1 Anna 2/0"},
        {"move", "(beep)", "", "Anna MovesLeft 0"},
        {"move", "(beep)", "", "Anna MovesLeft 3"},  // a value that no turn sets
        {"move,,,x", "Enter a number 1-42 for the territory with the starting units."},
        {"move,x,,x", "Enter a number 1-42 for the destination territory."},
        {"move,x,99,,0|move,7,6,,0.5", NoForce},
        {"move,7,6,x,1|move,x,6,1|move,7,6,1,4e4|move,7,6,4e4|move,7,4e4,1", invalid},
        // No neighbour, no territory, itself; from an unoccupied one, from another player's, into another
        // player's.
        {"move,7,5,1|move,7,100,1|move,7,7,1|move,5,6,1|move,9,6,1|move,7,9,1", invalid},
        {"move,7,6,11,9", "You cannot move more troops than you have."},
        {"move,7,6,-1,3.6", "You cannot move more tanks than you have."},
        {"move,7,6,-0.5,-1", "You cannot move negative troops."},
        {"move,7,6,1,-1", "You cannot move negative tanks."},
        {"move,7,8,3", invalid, "", "8 Anna 32765/0"},  // the units would not fit
        {"move,7,8,,1", invalid, "", "8 Anna 0/32767"},
    });
}

TEST(Orders, Attack) {
    const std::string losses =
        "Casualties for attacker (Player 1, Anna):\r        Troops: #\r        Tanks: #\r\r"
        "Casualties for defender (Player 2, Ben):\r        Troops: #\r        Tanks: #\r\r";
    const std::string won =
        "Vorlund - Battle Results|The battle was successful... you now have control of Mexico.|" + losses;
    const std::string lost =
        "Vorlund - Battle Results|The battle was unsuccessful... the enemy held off your attack.|" + losses;
    const std::string invalid =
        "You entered invalid attack data...\rCheck the validity of your attack and try again.";
    ExpectOrders({
        // Won by a tank against a defense and a higher Warfare level, with a die of 15.
        {"attack,7,9,3,1", With("3 0 2 1", won),
         "7 Anna 7/2F; 9 Anna 0/1; Anna AttacksLeft 1 Troops 12; Ben Factories 0 Tanks 0 Troops 4",
         "9 Ben 2/1FD; Ben WarfareLevel 1", "5/15 6/15 0/15 14/15 7/15 10/15 5/15 4/15 3/15"},
        // Lost against a lower Warfare level, with a die of 9; incomplete hits on a tank do not count
        // afterwards.
        {"attack, 7 ,9,,1", With("0 1 0 1", lost),
         "7 Anna 10/2F; 9 Ben 0/1F; Anna AttacksLeft 1 Tanks 2; Ben Tanks 1",
         "9 Ben 0/2F; Anna WarfareLevel 3", "5/9 6/9 0/9 1/9 8/9 2/9 3/9 7/9"},
        {"attack,7,9,10,3", With("0 0 0 0", won),
         "7 nobody 0/0; 9 Anna 10/3; Anna AttacksLeft 1 Factories 0; Ben Factories 0", "9 Ben 0/0F"},
        {"attack,7,9,1", With("1 0 0 0", lost) + Killed,
         "7 nobody 0/0; Anna AttacksLeft 1 Factories 0 IsDead 1 Troops 0", "7 Anna 1/0F; 8 Cleo 5/0", "6/12"},
        {"attack,7,9,1", With("0 0 1 0", won) + "Player 2 is now dead.",
         "7 Anna 9/3F; 9 Anna 1/0; Anna AttacksLeft 1; Ben Factories 0 IsDead 1 Troops 0",
         "9 Ben 1/0F; 31 Cleo 4/0", "5/12"},
        {"attack,6.6,8.5,1.9", With("1 0 0 0", lost), "7 Anna 9/3F; Anna AttacksLeft 1 Troops 14", "",
         "6/12"},
        {"attack,7,9,0.5", With("0 0 0 0", lost),
         "Anna AttacksLeft 1"},  // rounded down to an empty force, which loses
        {"attack", "(beep)", "", "Anna AttacksLeft 0"},
        {"attack,,,x", "Enter a number 1-42 for the attacking territory."},
        {"attack,7,,x", "Enter a number 1-42 for the defending territory."},
        {"attack,x,y,0,0.0", NoForce},
        {"attack,7,9,x|attack,7,9,1, |attack,x,9,1|attack,7,4e4,1|attack,7,9,9e9|attack,7,9,1,-4e4", invalid},
        {"attack,7,6,1|attack,7,8,1|attack,9,7,1|attack,7,31,1", invalid},
        {"attack,7,9,11,4", "You are attacking with more troops than you have."},
        {"attack,7,9,-1,4", "You are attacking with more tanks than you have."},
        {"attack,7,9,-.5,-1", "You cannot attack with negative troops."},
        {"attack,7,9,1,-1", "You cannot attack with negative tanks."},
    });
}

TEST(Orders, Strike) {
    ExpectOrders({
        {"strike,8.5",
         "Vorlund - Nuclear Strike Results|Your nuclear attack upon Mexico was successful.|"
         "Casualties for Player 2, Ben:\r        Troops: 3\r        Tanks: 2\r\r",
         "9 Ben 4/7F; Anna HasNuke 0; Ben Tanks 7 Troops 8", "9 Ben 7/9F"},
        {"strike,9", "(beep)", "", "Anna HasNuke 0"},
        {"strike", "Enter a number 1-42 for the country to nuke."},
        {"strike,42x|strike,42.5|strike,.9", "The country number must be 1-42."},
        {"strike,1|strike,42", "You may not nuke an unoccupied territory."},
        {"strike,7", "You may not nuke your own territory."},
    });
}

TEST(Orders, Status) {
    ExpectOrders({
        {"status",
         "Vorlund - Player 1 status|Anna|$500|10|44|3|2|0|0|0|0\rDeveloping nuke...|1 / 2|- $0|"
         "You have $500 to spend.You have 2 moves left this turn.You have 1 attack left this turn."
         "You do not have a nuclear bomb.Current Warfare upgrade: 0\rNext upgrade cost: $200",
         "", "Anna Factories 2 Troops 44 AttacksLeft 1 HasNuke 0"},
        {"status",
         "Vorlund - Player 1 status|Anna|$-45|12|50|3|1|4|1|3|2\rNuke awaiting use...|3 / 1|- $2|"
         "You have $-45 to spend.You have 1 move left this turn.You have 0 attacks left this turn."
         "You have a nuclear bomb to use.Current Warfare upgrade: 3\rNext upgrade cost: $max",
         "",
         "Anna Money -45 Oil 12 DebtTurns 4 EconomyLevel 1 WarfareLevel 3 NuclearLevel 2 Troops 50 MovesLeft "
         "1 AttacksLeft 3"},
    });
}

}  // namespace
}  // namespace vorlund
