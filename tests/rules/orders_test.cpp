#include "tests/rules/play.h"

namespace vorlund {
namespace {

/// An order of Anna's at the front: what is typed, what is said, and what changes, which is nothing when it
/// is refused. Her 7 and 8 are neighbours, Ben's 9 is a neighbour of 7, and 6 is free.
struct Row {
    const char* what;
    const char* typed;  ///< a comma before each entry, a bar between orders that all come to the same
    std::string said;
    std::string changes = "";
    std::string otherwise = "";  ///< what is different at the front
    std::string rolls = "";
};

const std::string Front =
    "; 7 Anna 10/3F; 8 Anna 5/0D; 9 Ben 2/1F; 20 Cleo 1/0; 31 Ben 4/0;"
    "Anna Money 500 Oil 10 HasNuke 1; ";

void ExpectOrders(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        std::istringstream orders(row.typed);
        for (std::string order; std::getline(orders, order, '|');) {
            SCOPED_TRACE(row.what);
            Play play(3, row.otherwise + Front + row.otherwise, row.rolls);
            const GameState before = play.Game;
            play.Then(order, row.said, row.changes);
            EXPECT_EQ(play.Game == before, row.changes.empty());
            EXPECT_EQ(play.Chance.Reseedings, order.starts_with("attack") && CanAttack(before) ? 1 : 0);
        }
    }
}

const std::string NoTransaction = "The data you entered will not make a transaction.";
const std::string OutOfRange = " you need a valid territory number (1-42).\rNo transaction was made.";
const std::string Killed = "You have killed yourself... you have no troops or tanks remaining.";
const std::string NoForce = "Enter a number for either troops or tanks.";

TEST(Orders, Buy) {
    const std::string title = "Vorlund - Buy|Details on current transaction:|";
    const std::string noFactory = " the territory must have a factory and be owned by you.";
    const std::string tooDear = "The cost of what you are buying exceeds your amount of money.\rYou need $";
    const std::string more = " more to complete that transaction.";
    ExpectOrders({
        {"everything", "buy,7,2,2,10",
         title + "You bought 2 Troops for $20 in Midwest USA.\rYou bought 2 Tanks for $80 in Midwest USA.\r"
                 "You bought 9 oil barrels for $3.\r\r        Total spent: $103",
         "7 Anna 12/5F; Anna Money 397 Oil 19 Tanks 5 Troops 17"},
        {"oil for all the money, wherever", "buy,none,,,1500",
         title + "You bought 1500 oil barrels for $500.\r\r        Total spent: $500",
         "Anna Money 0 Oil 1510"},
        {"fractions are cut off, what is negative is left out", "buy,7.4,-3,2.9,2.9",
         title + "You bought 2 Tanks for $80 in Midwest USA.\r        Total spent: $80",
         "7 Anna 10/5F; Anna Money 420 Tanks 5"},
        {"nothing, letters, too much for 16 bits", "buy|buy,7,0.5|buy,8,5,,x|buy,x,5|buy,7,4e4|buy,7,,820",
         NoTransaction},
        {"any number of troops needs a factory", "buy,8,-0.5|buy,9,1", "To buy Troops" + noFactory},
        {"no territory for troops", "buy,,-3|buy,.5,5,5", "To buy Troops" + OutOfRange},
        {"nor for tanks", "buy,43,,5", "To buy Tanks" + OutOfRange},
        {"a price just within 16 bits", "buy,7,,819", tooDear + "32260" + more},
        {"much oil is priced a dollar too high", "buy,,,,5003", tooDear + "1" + more, "", "Anna Money 1667"},
        {"more troops than the total holds", "buy,7,1,1,3", NoTransaction, "", "Anna Troops 32767"},
        {"more tanks than the territory holds", "buy,7,1,1,3", NoTransaction, "",
         "7 Anna 1/32767F; Anna Tanks 0"},
        {"more oil than a treasury holds", "buy,7,1,1,3", NoTransaction, "", "Anna Oil 32765"},
    });
}

TEST(Orders, Sell) {
    const std::string title = "Vorlund - Sell|Details on current transaction:|";
    const std::string ten = "You sold 10 Troops for $70 in Midwest USA.\r";
    const std::string total = "        Total money gained: $";
    ExpectOrders({
        {"everything, cut down", "sell,7,4.5,2,7",
         title +
             "You sold 4 Troops for $28 in Midwest USA.\rYou sold 2 Tanks for $60 in Midwest USA.\r"
             "You sold 6 oil barrels for $2.\r\r" +
             total + "90\r\r",
         "7 Anna 6/1F; Anna Money 590 Oil 4 Tanks 1 Troops 11"},
        {"all the oil, wherever, even where nothing stands", "sell,1,0.5,-1,9",
         title + "You sold 9 oil barrels for $3.\r\r" + total + "3\r\r", "Anna Money 503 Oil 0",
         "1 Anna 0/0; Anna Oil 9"},
        {"all units, which gives the territory up", "sell,7,10,3",
         title + ten + "You sold 3 Tanks for $90 in Midwest USA.\r" + total + "160\r\r",
         "7 nobody 0/0; Anna Factories 0 Money 660 Tanks 0 Troops 5"},
        {"the last units of all", "sell,7,10", title + ten + total + "70\r\r" + Killed,
         "7 nobody 0/0; Anna Factories 0 IsDead 1 Money 570 Troops 0", "7 Anna 10/0F; 8 Cleo 5/0"},
        {"nothing, wherever, and letters", "sell|sell,99,0.5|sell,99,1,x|sell,x,1", NoTransaction},
        {"no territory for troops", "sell,43,1,1", "To sell Troops" + OutOfRange},
        {"nor for tanks", "sell,,,1", "To sell Tanks" + OutOfRange},
        {"another player's", "sell,9,1", "To sell Troops the territory must be owned by you."},
        {"nobody's", "sell,1,,1", "To sell Tanks the territory must be owned by you."},
        {"a troop too many", "sell,7,11", "You cannot sell more Troops than you have in a territory."},
        {"a tank too many", "sell,7,1,4,99", "You cannot sell more Tanks than you have in a territory."},
        {"more oil, though not in whole lots", "sell,,,,11",
         "You cannot sell more oil barrels than you have."},
        {"more money than a treasury holds", "sell,7,4,,3", NoTransaction, "", "Anna Money 32740"},
    });
    Play alone(2, "7 Anna 10/0F; Ben IsDead 1", "");
    alone.Then("sell,7,10", "(nobody is left)", "7 nobody 0/0; Anna Factories 0 IsDead 1 Money 70 Troops 0");
}

TEST(Orders, BuildAndUpgrade) {
    const std::string noNumber = " requires a valid territory number (1-42).\rNo transaction was made.";
    const std::string taken = "The territory must be owned by you\rand not already have ";
    const std::string poor = "You do not have enough money.\r";
    ExpectOrders({
        {"a factory", "factory, 7.6 ", "Factory built in Eastern USA.\r",
         "8 Anna 5/0FD; Anna Factories 2 Money 320"},
        {"no number, or one that rounds to 0", "factory|factory,.5|factory,4e4",
         "Building a factory" + noNumber, "", "Anna Money 0"},
        {"built already; nobody's, 42.5 being rounded to 42", "factory,7|factory,42.5", taken + "a factory.",
         "", "Anna Money 0"},
        {"a dollar short", "factory,8", poor + "A factory requires $180.", "", "Anna Money 179"},
        {"a defense for all the money", "defense,7", "Defense built in Midwest USA.\r",
         "7 Anna 10/3FD; Anna Money 0", "Anna Money 100"},
        {"number 43", "defense,43", "Building defense" + noNumber},
        {"another player's", "defense,9", taken + "defense."},
        {"a dollar short", "defense,7", poor + "Defense requires $100.", "", "Anna Money 99"},
        {"Economy", "upgrade,0", "Level 1 Economy upgrade complete.\r", "Anna EconomyLevel 1 Money 350"},
        {"Nuclear for all the money", "upgrade,2", "Level 1 Nuclear upgrade complete.\r",
         "Anna Money 0 NuclearLevel 1", "Anna Money 100"},
        {"level 3 of Warfare is too dear", "upgrade,1", "You do not have enough money for this upgrade.", "",
         "Anna WarfareLevel 2"},
        {"there is no level 4", "upgrade,2", "(nothing)", "", "Anna NuclearLevel 3"},
    });
}

TEST(Orders, Transport) {
    const std::string moved = "Move to Western USA was successful.";
    const std::string invalid =
        "You entered invalid transport data...\rCheck the validity of your move and try again.";
    ExpectOrders({
        {"into a free neighbour; 2.7 troops are cut down, 2.5 tanks rounded to even", "move,7,6,2.7,2.5",
         moved, "6 Anna 2/2; 7 Anna 8/1F; Anna MovesLeft 1"},
        {"into an own neighbour; 1.5 tanks are rounded to even", "move,7.4, 0.8e1 ,1,1.5",
         "Move to Eastern USA was successful.", "7 Anna 9/1F; 8 Anna 6/2D; Anna MovesLeft 1"},
        {"half a troop moves nobody and still claims", "move,7,6,0.5", moved, "6 Anna 0/0; Anna MovesLeft 1"},
        {"all units, which gives the source up", "move,7,6,10,3", moved,
         "6 Anna 10/3; 7 nobody 0/0; Anna Factories 0 MovesLeft 1"},
        {".5 is number 1", "move,.5,2,1", "Move to Vancouver Territory was successful.",
         "1 Anna 1/0; 2 Anna 1/0; Anna MovesLeft 1", "1 Anna 2/0"},
        {"no moves left", "move", "(beep)", "", "Anna MovesLeft 0"},
        {"no source", "move,,,x", "Enter a number 1-42 for the territory with the starting units."},
        {"no destination", "move,x,,x", "Enter a number 1-42 for the destination territory."},
        {"no force, wherever; half a tank is none", "move,x,99,,0|move,7,6,,0.5", NoForce},
        {"letters", "move,7,6,x,1|move,x,6,1", invalid},
        {"beyond 16 bits", "move,7,6,1,4e4|move,7,6,4e4|move,7,4e4,1", invalid},
        {"no neighbours, where one is missing, to itself", "move,7,5,1|move,7,100,1|move,7,7,1", invalid},
        {"from nobody's, from another's, into another's", "move,5,6,1|move,9,6,1|move,7,9,1", invalid},
        {"more troops, before more tanks", "move,7,6,11,9", "You cannot move more troops than you have."},
        {"more tanks once rounded", "move,7,6,-1,3.6", "You cannot move more tanks than you have."},
        {"half a troop below 0", "move,7,6,-0.5,-1", "You cannot move negative troops."},
        {"negative tanks", "move,7,6,1,-1", "You cannot move negative tanks."},
        {"troops that the destination cannot hold", "move,7,8,3", invalid, "", "8 Anna 32765/0"},
        {"tanks that the destination cannot hold", "move,7,8,,1", invalid, "", "8 Anna 0/32767"},
    });
}

std::string Losses(int ourTroops, int ourTanks, int theirTroops, int theirTanks) {
    std::ostringstream text;
    text << "Casualties for attacker (Player 1, Anna):\r        Troops: " << ourTroops
         << "\r        Tanks: " << ourTanks << "\r\r"
         << "Casualties for defender (Player 2, Ben):\r        Troops: " << theirTroops
         << "\r        Tanks: " << theirTanks << "\r\r";
    return text.str();
}

TEST(Orders, Attack) {
    const std::string won =
        "Vorlund - Battle Results|The battle was successful... you now have control of Mexico.|";
    const std::string lost =
        "Vorlund - Battle Results|The battle was unsuccessful... the enemy held off your attack.|";
    const std::string invalid =
        "You entered invalid attack data...\rCheck the validity of your attack and try again.";
    ExpectOrders({
        {"won by a tank against a defense and better warfare, a die of 15", "attack,7,9,3,1",
         won + Losses(3, 0, 2, 1),
         "7 Anna 7/2F; 9 Anna 0/1; Anna AttacksLeft 1 Troops 12; Ben Factories 0 Tanks 0 Troops 4",
         "9 Ben 2/1FD; Ben WarfareLevel 1", "5/15 6/15 0/15 14/15 7/15 10/15 5/15 4/15 3/15"},
        {"lost with worse warfare against it, a die of 9, hits that killed no tank forgotten",
         "attack, 7 ,9,,1", lost + Losses(0, 1, 0, 1),
         "7 Anna 10/2F; 9 Ben 0/1F; Anna AttacksLeft 1 Tanks 2; Ben Tanks 1",
         "9 Ben 0/2F; Anna WarfareLevel 3", "5/9 6/9 0/9 1/9 8/9 2/9 3/9 7/9"},
        {"with all units, which gives the territory up, against nobody", "attack,7,9,10,3",
         won + Losses(0, 0, 0, 0),
         "7 nobody 0/0; 9 Anna 10/3; Anna AttacksLeft 1 Factories 0; Ben Factories 0", "9 Ben 0/0F"},
        {"lost with the last unit of all", "attack,7,9,1", lost + Losses(1, 0, 0, 0) + Killed,
         "7 nobody 0/0; Anna AttacksLeft 1 Factories 0 IsDead 1 Troops 0", "7 Anna 1/0F; 8 Cleo 5/0", "6/12"},
        {"won over a defender's last territory", "attack,7,9,1",
         won + Losses(0, 0, 1, 0) + "Player 2 is now dead.",
         "7 Anna 9/3F; 9 Anna 1/0; Anna AttacksLeft 1; Ben Factories 0 IsDead 1 Troops 0",
         "9 Ben 1/0F; 31 Cleo 4/0", "5/12"},
        {"territories are rounded to even, troops cut down", "attack,6.6,8.5,1.9", lost + Losses(1, 0, 0, 0),
         "7 Anna 9/3F; Anna AttacksLeft 1 Troops 14", "", "6/12"},
        {"half a troop is none, loses, and uses the attack up", "attack,7,9,0.5", lost + Losses(0, 0, 0, 0),
         "Anna AttacksLeft 1"},
        {"no attacks left", "attack", "(beep)", "", "Anna AttacksLeft 0"},
        {"no attacker", "attack,,,x", "Enter a number 1-42 for the attacking territory."},
        {"no defender", "attack,7,,x", "Enter a number 1-42 for the defending territory."},
        {"no units from an odd place", "attack,x,y,0,0.0", NoForce},
        {"letters and blanks", "attack,7,9,abc|attack,7,9,1, |attack,x,9,1", invalid},
        {"beyond 16 bits", "attack,7,4e4,1|attack,7,9,9e9|attack,7,9,1,-4e4", invalid},
        {"empty, own, another player's, no neighbours",
         "attack,7,6,1|attack,7,8,1|attack,9,7,1|attack,7,31,1", invalid},
        {"more troops, before more tanks", "attack,7,9,11,4",
         "You are attacking with more troops than you have."},
        {"more tanks, before negative troops", "attack,7,9,-1,4",
         "You are attacking with more tanks than you have."},
        {"half a troop below 0", "attack,7,9,-.5,-1", "You cannot attack with negative troops."},
        {"negative tanks", "attack,7,9,1,-1", "You cannot attack with negative tanks."},
    });
}

TEST(Orders, Strike) {
    ExpectOrders({
        {"half of the troops and a quarter of the tanks, cut down", "strike,8.5",
         "Vorlund - Nuclear Strike Results|Your nuclear attack upon Mexico was successful.|Casualties for "
         "Player 2, Ben:\r        Troops: 3\r        Tanks: 2\r\r",
         "9 Ben 4/7F; Anna HasNuke 0; Ben Tanks 7 Troops 8", "9 Ben 7/9F"},
        {"without a bomb", "strike,9", "(beep)", "", "Anna HasNuke 0"},
        {"nothing typed", "strike", "Enter a number 1-42 for the country to nuke."},
        {"no number of a territory", "strike,42x|strike,42.5|strike,.9", "The country number must be 1-42."},
        {"nobody's", "strike,2", "You may not nuke an unoccupied territory."},
        {"an own one", "strike,7", "You may not nuke your own territory."},
    });
}

/// All that the dialogs show of the current player.
std::string Status(const GameState& game) {
    const StatusLines s = DescribeStatus(game);
    return s.Title + "|" + s.Name + "|" + s.Money + "|" + s.Oil + "|" + s.Troops + "|" + s.Tanks + "|" +
           s.Factories + "|" + s.Debt + "|" + s.Economy + "|" + s.Warfare + "|" + s.Nuclear + "|" +
           s.AttacksMoves + "|" + s.Upkeep + "|" + MoneyLine(game) + MovesLeftText(game) +
           AttacksLeftText(game) + BombText(game) + StatusOf(game, Track::Warfare).Text;
}

TEST(Status, ShowsTheCurrentPlayer) {
    GameState game = NewGame(
        2,
        Front + "Ben Money -45 Oil 12 DebtTurns 4 EconomyLevel 1 WarfareLevel 3 MovesLeft 1 AttacksLeft -1");
    game.CurrentPlayer = 1;
    EXPECT_EQ(Status(game),
              "Vorlund - Player 2 status|Ben|$-45|12|6|1|1|4|1|3|0\rDeveloping nuke...|-1 / 1|+ $75|You have "
              "$-45 to spend."
              "You have 1 move left this turn.You have 0 attacks left this turn."
              "You do not have a nuclear bomb.Current Warfare upgrade: 3\rNext upgrade cost: $max");
    Put(game, "Ben Money 45 HasNuke 1 NuclearLevel 2 WarfareLevel 2 Troops 50 MovesLeft 3 AttacksLeft 1");
    EXPECT_EQ(Status(game),
              "Vorlund - Player 2 status|Ben|$45|12|50|1|1|4|1|2|2\rNuke awaiting use...|1 / 3|- $13|You "
              "have $45 to spend."
              "You have 0 moves left this turn.You have 1 attack left this turn."
              "You have a nuclear bomb to use.Current Warfare upgrade: 2\rNext upgrade cost: $600");
    Put(game, "Ben Troops 43 Factories 2");
    EXPECT_EQ(DescribeStatus(game).Upkeep, "- $0");
}

}  // namespace
}  // namespace vorlund
