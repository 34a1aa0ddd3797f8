#include "actions/battle.h"
#include "actions/strike.h"
#include "tests/rules/orders.h"

namespace vorlund {
namespace {

std::vector<float> Rolls(int faces, const std::vector<int>& rolls) {
    std::vector<float> script;
    for (const int roll : rolls) {
        script.push_back(For(roll, faces));
    }
    return script;
}

const std::string NoForce = "Enter a number for either troops or tanks.";
const std::string Killed = "You have killed yourself... you have no troops or tanks remaining.";

TEST(Orders, Transport) {
    const std::string moved = "Move to Western USA was successful.";
    const std::string invalid =
        "You entered invalid transport data...\rCheck the validity of your move and try again.";
    const auto alaska = [](GameState& game) { Give(game, 0, 0, 2, 0); };
    const std::vector<OrderRow> rows{
        {"into a free neighbour; 2.7 troops are cut down, 2.5 tanks rounded to even", "7,6,2.7,2.5", moved,
         "6 Anna 2/2; 7 Anna 8/1 F; Anna MovesLeft 1"},
        {"into an own neighbour; 1.5 tanks are rounded to even", "7.4, 0.8e1 ,1,1.5",
         "Move to Eastern USA was successful.", "7 Anna 9/1 F; 8 Anna 6/2 D; Anna MovesLeft 1"},
        {"half a troop moves nobody and still claims", "7,6,0.5,", moved, "6 Anna 0/0; Anna MovesLeft 1"},
        {"all units, which gives the source up", "7,6,10,3", moved,
         "6 Anna 10/3; 7 nobody 0/0; Anna Factories 0 MovesLeft 1"},
        {".5 is number 1", ".5,2,1,", "Move to Vancouver Territory was successful.",
         "1 Anna 1/0; 2 Anna 1/0; Anna MovesLeft 1", alaska},
        {"the second move", "7,6,1,", moved, "6 Anna 1/0; 7 Anna 9/3 F; Anna MovesLeft 0",
         Anna(&Player::MovesLeft, 1)},
        {"no moves left", ",,,", "(beep)", "", Anna(&Player::MovesLeft, 0)},
        {"no source", ",,x,", "Enter a number 1-42 for the territory with the starting units."},
        {"no destination", "x,,x,", "Enter a number 1-42 for the destination territory."},
        {"no force, wherever", "x,99,,0", NoForce},
        {"half a tank is none", "7,6,,0.5", NoForce},
        {"letters for troops", "7,6,x,1", invalid},
        {"tanks beyond 16 bits", "7,6,1,4e4", invalid},
        {"troops beyond 16 bits", "7,6,4e4,", invalid},
        {"letters for the source", "x,6,1,", invalid},
        {"a destination beyond 16 bits", "7,4e4,1,", invalid},
        {"beyond the neighbours", "7,5,1,", invalid},
        {"where a neighbour is missing", "7,100,1,", invalid},
        {"from a territory of nobody", "5,6,1,", invalid},
        {"from another player's territory", "9,6,1,", invalid},
        {"into another player's territory", "7,9,1,", invalid},
        {"more troops, before more tanks", "7,6,11,9", "You cannot move more troops than you have."},
        {"more tanks once rounded", "7,6,-1,3.6", "You cannot move more tanks than you have."},
        {"half a troop below 0", "7,6,-0.5,-1", "You cannot move negative troops."},
        {"negative tanks", "7,6,1,-1", "You cannot move negative tanks."},
        {"troops that the destination cannot hold", "7,8,3,", invalid, "",
         [](GameState& game) { game.Territories[7].Troops = 32765; }},
        {"tanks that the destination cannot hold", "7,8,,1", invalid, "",
         [](GameState& game) { game.Territories[7].Tanks = 32767; }},
    };
    ExpectOrders(rows, [](GameState& game, Random&, const auto& typed) {
        return Tran(game, CanMove(game), {typed[0], typed[1], typed[2], typed[3]});
    });
}

std::string Losses(const std::string& side, int troops, int tanks) {
    return "Casualties for " + side + "):\r        Troops: " + std::to_string(troops) +
           "\r        Tanks: " + std::to_string(tanks) + "\r\r";
}

const std::string Ours = "attacker (Player 1, Anna";
const std::string Theirs = "defender (Player 2, Ben";

TEST(Orders, Attack) {
    const std::string won =
        "Vorlund - Battle Results|The battle was successful... you now have control of Mexico.|";
    const std::string lost =
        "Vorlund - Battle Results|The battle was unsuccessful... the enemy held off your attack.|";
    const std::string invalid =
        "You entered invalid attack data...\rCheck the validity of your attack and try again.";
    const std::vector<OrderRow> rows{
        {"won by a tank against a defense and better warfare, a die of 15", "7,9,3,1",
         won + Losses(Ours, 3, 0) + Losses(Theirs, 2, 1),
         "7 Anna 7/2 F; 9 Anna 0/1; Anna Troops 12 AttacksLeft 1; Ben Troops 4 Tanks 0 Factories 0",
         [](GameState& game) {
             game.Territories[8].HasDefense = true;
             game.Players[1].WarfareLevel = 1;
         },
         Rolls(15, {5, 6, 0, 14, 7, 10, 5, 4, 3})},
        {"lost with worse warfare against it, a die of 9, hits that killed no tank forgotten", " 7 ,9,,1",
         lost + Losses(Ours, 0, 1) + Losses(Theirs, 0, 1),
         "7 Anna 10/2 F; 9 Ben 0/1 F; Anna Tanks 2 AttacksLeft 1; Ben Tanks 1",
         [](GameState& game) {
             game.Players[0].WarfareLevel = 3;
             Station(game, 8, 0, 2);
         },
         Rolls(9, {5, 6, 0, 1, 8, 2, 3, 7})},
        {"with all units, which gives the territory up, against nobody", "7,9,10,3",
         won + Losses(Ours, 0, 0) + Losses(Theirs, 0, 0),
         "7 nobody 0/0; 9 Anna 10/3; Anna Factories 0 AttacksLeft 1; Ben Factories 0",
         [](GameState& game) { Station(game, 8, 0); }},
        {"lost with the last unit of all", "7,9,1,",
         lost + Losses(Ours, 1, 0) + Losses(Theirs, 0, 0) + Killed,
         "7 nobody 0/0; Anna Troops 0 Factories 0 AttacksLeft 1 IsDead 1",
         [](GameState& game) {
             Clear(game, 7);
             Station(game, 6, 1);
         },
         Rolls(12, {6})},
        {"won over a defender's last territory", "7,9,1,",
         won + Losses(Ours, 0, 0) + Losses(Theirs, 1, 0) + "Player 2 is now dead.",
         "7 Anna 9/3 F; 9 Anna 1/0; Anna AttacksLeft 1; Ben Troops 0 Factories 0 IsDead 1",
         [](GameState& game) {
             Clear(game, 30);
             Station(game, 8, 1);
         },
         Rolls(12, {5})},
        {"territories are rounded to even, troops cut down", "6.6,8.5,1.9,",
         lost + Losses(Ours, 1, 0) + Losses(Theirs, 0, 0), "7 Anna 9/3 F; Anna Troops 14 AttacksLeft 1",
         [](GameState&) {}, Rolls(12, {6})},
        {"half a troop is none, loses, and uses the attack up", "7,9,0.5,",
         lost + Losses(Ours, 0, 0) + Losses(Theirs, 0, 0), "Anna AttacksLeft 1"},
        {"no attacker", ",,x,", "Enter a number 1-42 for the attacking territory."},
        {"no defender", "7,,x,", "Enter a number 1-42 for the defending territory."},
        {"letters for troops", "7,9,abc,", invalid},
        {"blanks for tanks", "7,9,1, ", invalid},
        {"no units from an odd place", "x,y,0,0.0", NoForce},
        {"letters for the attacker", "x,9,1,", invalid},
        {"a defender beyond 16 bits", "7,4e4,1,", invalid},
        {"an empty target", "7,6,1,", invalid},
        {"an own target", "7,8,1,", invalid},
        {"from another player's territory", "9,7,1,", invalid},
        {"beyond the neighbours", "7,31,1,", invalid},
        {"troops beyond 16 bits", "7,9,9e9,", invalid},
        {"tanks beyond 16 bits", "7,9,1,-4e4", invalid},
        {"more troops, before more tanks", "7,9,11,4", "You are attacking with more troops than you have."},
        {"more tanks, before negative troops", "7,9,-1,4",
         "You are attacking with more tanks than you have."},
        {"half a troop below 0", "7,9,-.5,-1", "You cannot attack with negative troops."},
        {"negative tanks", "7,9,1,-1", "You cannot attack with negative tanks."},
    };
    ExpectOrders(rows, [](GameState& game, ScriptedRandom& random, const auto& typed) {
        auto outcome = Attck(game, random, CanAttack(game), {typed[0], typed[1], typed[2], typed[3]});
        EXPECT_EQ(random.Reseedings, 1);
        return outcome;
    });
    GameState game = Front();
    ScriptedRandom random({});
    EXPECT_EQ(std::visit(Said{}, Attck(game, random, false, {"7", "9", "1", ""})), "(beep)");
    EXPECT_EQ(game, Front());
}

TEST(Orders, Strike) {
    const std::string range = "The country number must be 1-42.";
    const std::vector<OrderRow> rows{
        {"half of the troops and a quarter of the tanks, cut down", "8.5",
         "Vorlund - Nuclear Strike Results|Your nuclear attack upon Mexico was successful.|Casualties for "
         "Player 2, Ben:\r        Troops: 3\r        Tanks: 2\r\r",
         "9 Ben 4/7 F; Anna HasNuke 0; Ben Troops 8 Tanks 7",
         [](GameState& game) { Station(game, 8, 7, 9); }},
        {"without a bomb", "9", "(beep)", "", [](GameState& game) { game.Players[0].HasNuke = false; }},
        {"nothing typed", "", "Enter a number 1-42 for the country to nuke."},
        {"letters", "42x", range},
        {"number 42.5", "42.5", range},
        {"number .9", ".9", range},
        {"nobody's", "2", "You may not nuke an unoccupied territory."},
        {"an own one", "7", "You may not nuke your own territory."},
    };
    ExpectOrders(rows, [](GameState& game, Random&, const auto& typed) {
        EXPECT_EQ(BombText(game), game.Players[0].HasNuke ? "You have a nuclear bomb to use."
                                                          : "You do not have a nuclear bomb.");
        return Strike(game, game.Current().HasNuke, typed[0]);
    });
}

TEST(MovesAndAttacks, AreLeftAtOneAndTwoAlone) {
    const std::vector<std::pair<std::int16_t, std::string>> rows{
        {3, "0 %s"}, {2, "2 %s"}, {1, "1 %"}, {0, "0 %s"}, {-1, "0 %s"}};
    for (const auto& [left, words] : rows) {
        GameState game = Front();
        game.Players[0].MovesLeft = game.Players[0].AttacksLeft = left;
        const auto text = [&words = words](const char* what) {
            std::string filled = words;
            return "You have " + filled.replace(filled.find('%'), 1, what) + " left this turn.";
        };
        EXPECT_EQ(MovesLeftText(game), text("move"));
        EXPECT_EQ(AttacksLeftText(game), text("attack"));
        EXPECT_EQ(CanMove(game), left == 1 || left == 2) << left;
        EXPECT_EQ(CanAttack(game), left == 1 || left == 2) << left;
    }
}

}  // namespace
}  // namespace vorlund
