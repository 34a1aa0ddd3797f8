// SPDX-License-Identifier: MIT
#include "tests/rules/play.h"

namespace vorlund {
namespace {

TEST(Upkeep, BooksAndReports) {
    const auto report = [](const std::string& figures) {
        return With(figures,
                    "Vorlund - Upkeep|Upkeep status for Player 1, Anna.|Upkeep for Troops and "
                    "Factories: $#\rUpkeep for Tanks: # barrels\r\rMoney collected from "
                    "territories: $#\rRemaining money after expenses: $#\r\r");
    };
    const std::string found = "Your nuclear development team has researched a nuclear bomb.\r\r";
    const std::string debt = "Your economy is in debt- economic unrest spreads through your land.\r";
    const std::string collapse = "Your territories collapse due to prolonged periods of lack of funds.";
    const std::vector<Row> rows{
        // Four territories, an oil field and Economy level 2; income is rounded down.
        {"upkeep", report("22 3 187 165"), "Anna Money 265 Oil 12",
         "1 Anna 10/3F 2 Anna 0/0F 3 Anna 0/0 4 Anna 0/0 Anna Money 100 EconomyLevel 2", "0/13"},
        {"upkeep", report("0 0 50 50"), "Anna Money 50", "Anna EconomyLevel 3", "0/13"},  // of 50.70
        // Missing oil costs money. Two earlier turns in debt have no effect while there is money.
        {"upkeep", report("0 7 39 39") + debt, "Anna DebtTurns 1 Money -2", "2 Anna 0/7 Anna Money -34",
         "0/13"},
        {"upkeep", report("0 0 39 39"), "Anna Money 0", "Anna Money -39 DebtTurns 2", "0/13"},
        {"upkeep", report("9 1 39 30") + debt + collapse, "2 nobody 0/0; Anna DebtTurns 3 IsDead 1 Money -1",
         "2 Anna 4/1FD Anna Money -30 DebtTurns 2", "0/13"},
        // Without a new debt, too, as in a loaded game
        {"upkeep", report("0 0 39 39") + collapse, "2 nobody 0/0; Anna IsDead 1 Money 39", "Anna DebtTurns 4",
         "0/13"},
        // Sums saturate.
        {"upkeep", report("0 0 78 78"), "Anna Money 32767 Oil 32767", "1 Anna 0/0 Anna Money 32760 Oil 32760",
         "0/13"},
        {"upkeep", report("32767 0 39 -32728") + debt, "Anna DebtTurns 1 Money -32768",
         "Anna Money -32000 Troops 32767", "0/13"},
        {"upkeep", report("0 0 39 39") + found, "Anna HasNuke 1 Money 39", "", "2/13"},
        {"upkeep", report("0 0 39 39") + found, "Anna HasNuke 1 Money 39", "Anna NuclearLevel 3", "2/3"},
        {"upkeep", report("0 0 39 39"), "Anna Money 39", "Anna HasNuke 1", "2/13"},
    };
    ExpectSteps(" 2 Anna 0/0 41 Cleo 0/0 42 Ben 0/0", rows);
}

const std::string Ended = "CloseReport; CloseDialogs; no commands; ";

const std::string TurnBegins =
    "'Vorlund - #'s turn'; RefreshMap; ShowReport # Upkeep status for Player #, #.; ";
const std::string Won = "ShowGameOver # wins; 'Vorlund - # wins'; Announce Player #, #, you win the game!; ";

TEST(Turn, PassesToTheNextLivingPlayerWithCommandsAfterTheReport) {
    Play play(5,
              "1 Anna 0/0 21 Cleo 0/0 Ben IsDead 1 Dora IsDead 1 Emil IsDead 1 "
              "Anna MovesLeft 0 FirstTurn 1 Cleo AttacksLeft 1 FirstTurn 1",
              "0/13 0/13 0/13");
    play.Then("open", "'Vorlund - Anna's turn'; RefreshMap; ShowReport  Upkeep status for Player 1, Anna.; ",
              "Anna Money 39 MovesLeft 2 Oil 15");
    play.Then("close", "all but Attack; ");
    play.Then("end", Ended + With("Cleo 3 3 Cleo", TurnBegins),
              "Anna FirstTurn 0; Cleo AttacksLeft 2 Money 39");
    play.Then("end", Ended + With("Anna 1 1 Anna", TurnBegins), "Anna Money 78 Oil 30; Cleo FirstTurn 0");
    play.Then("close", "all commands; ");
    EXPECT_EQ(play.Chance.Reseedings, 3);
}

TEST(Turn, AnnouncesTheLastPlayerAliveHumanOrComputer) {
    for (const std::string computer : {"0", "1"}) {
        Play play(3, "11 Ben 1/0 Anna IsDead 1 Cleo IsDead 1 Ben IsComputer " + computer, "");
        play.Then("end", Ended + With("Ben Ben 2 Ben", Won));
        play.Then("close", "");
    }
}

TEST(Turn, PassesToTheSamePlayerWhenNobodyIsAlive) {
    Play play(2, "Anna IsDead 1 Ben IsDead 1", "0/13");
    NobodyWins(play.Seen);
    EXPECT_EQ(play.Seen.Calls,
              "RefreshMap; no commands; Announce All players are dead, no one wins...; CloseDialogs; ");
    play.Then("end", Ended + With("Anna 1 1 Anna", TurnBegins));
}

TEST(Turn, CanBeEndedByAPlayerWhoseCollapseLeavesOneAlive) {
    Play play(2, "1 Anna 0/0 11 Ben 0/0 Ben DebtTurns 2 Money -100", "0/13");
    play.Then("end", Ended + With("Ben 2 2 Ben", TurnBegins),
              "11 nobody 0/0; Ben DebtTurns 3 IsDead 1 Money -61");
    play.Then("close", "EndTurn; ");
    play.Then("end", Ended + With("Anna Anna 1 Anna", Won));
    play.Game.GameOver = false;  // a single living player without GameOver: no commands either
    play.Then("close", "");
}

TEST(Turn, PassesFromComputerToComputerToHuman) {
    Play play(5,
              "1 Anna 1/0 11 Ben 1/0 31 Dora 1/0 41 Emil 1/0 Cleo IsDead 1 Ben IsComputer 1 Dora IsComputer "
              "1 AttacksLeft 0",
              "0/13 0/13");
    play.Then("end", Ended + "'Vorlund - Ben's turn'; ShowReport 2 Ben plays; ");
    play.Then("close", "ShowReport 4 Dora plays; ");  // whose attacks are not replenished
    play.Then("close", "CloseDialogs; no commands; " + With("Emil 5 5 Emil", TurnBegins), "Emil Money 37");
    EXPECT_FALSE(play.Game.ComputerTurnEnded);
    play.Then("close", "all commands; ");
    play.Game.ComputerTurnEnded = true;  // a computer's report in a human's turn
    play.Then("close", "CloseDialogs; no commands; " + With("Anna 1 1 Anna", TurnBegins),
              "Anna Money 37 Oil 15");
}

TEST(Commands, HaveAReasonWhyTheyAreUnavailable) {
    GameState game =
        NewGame(2, "1 Anna 0/0 Ben IsDead 1 Anna FirstTurn 1 WarfareLevel 3 AttacksLeft 0 MovesLeft 0");
    EXPECT_EQ(WhyUnavailable(game, Command::Attack), "Nobody attacks in their first turn.");
    EXPECT_EQ(WhyNoAttack(game), "You have no attack left this turn.");
    EXPECT_EQ(WhyNoMove(game), "You have no move left this turn.");
    EXPECT_EQ(WhyNoStrike(game), "You have no nuclear bomb.");
    EXPECT_EQ(WhyNoUpgrade(game, Track::Warfare), "This upgrade is at its highest level.");
    Put(game, "Anna AttacksLeft 1 MovesLeft 1 HasNuke 1");
    EXPECT_FALSE(WhyNoAttack(game) || WhyNoMove(game) || WhyNoStrike(game) ||
                 WhyNoUpgrade(game, Track::Nuclear));
    Put(game, "Anna IsDead 1 Ben IsDead 0");
    EXPECT_EQ(WhyUnavailable(game, Command::Buy), "You are dead and can only end your turn.");
    Put(game, "Ben IsDead 1");
    EXPECT_EQ(WhyUnavailable(game, Command::EndTurn), "The game is over.");
}

struct ComputerRow {
    int players;
    std::string world;
    std::string rolls;
    std::string changes;
    std::string body = "";  ///< of the report; empty if it is not compared
};

// The first rolls of a turn: no bomb, no second claim, both scans forward.
const std::string NoLuck = "0/5 2/3 2/5 4/10 4/10 ";
const std::string FirstTurn = "0/5 4/10 4/10 ";

// Ben plays. The only neighbour of 35 is 34, that of 27 is 26, and those of 26 are 25 and 27.
const std::vector<ComputerRow> ComputerTurns{
    {3, "6 Ben 10/2; 35 Ben 4/0; 7 Anna 21/5D; 34 Anna 2/0; 9 Cleo 1/0F; Anna WarfareLevel 3",
     "2/5 1/3 1/5 5/10 4/10 "  // a bomb, a second claim, from the last territory and the first slot
     "2/6 0/6 11/76 "    // claims 2 with a defense, then 1 without; a tank for each border with an enemy
     "1/2 0/3 2/3 1/5 "  // 1 borders 2: a troop and a tank, then 29: a troop
     "0/2 1/3 2/3 2/3 3/4 1/3 "  // 2 borders 1 and 3: a troop each, then 6: nothing, it has 4
     "2/10 0/7 "                 // 6 borders 2: a troop and a tank
     "6/12 5/12 "                // Mexico is captured for one troop
     "6/15 7/15 14/15 5/15 8/15 9/15 10/15 11/15 12/15",  // Manchuria holds out
     // New units are not added to Ben's totals, losses are subtracted.
     "1 Ben 4/1; 2 Ben 5/1D; 6 Ben 2/0F; 7 Anna 11/4D; 9 Ben 12/5; 34 Anna 1/0; 35 Ben 2/0; "
     "Anna Tanks 4 Troops 12; Ben Factories 1 Tanks 1 Troops 8; Cleo Factories 0 IsDead 1 Troops 0",
     "Moved forces into Vancouver Territory.\rMoved forces into Alaskan Territory.\r"
     "Player 1, Anna's, Midwest USA was nuked and lost 10 troops and 1 tanks.\r"
     "\rAttack on Mexico, Cleo, was successful.\r"
     "Ben lost 1/0 troops/tanks, and defender lost 1/0 troops/tanks.\rPlayer 3 is now dead.\r"
     "\rAttack on Manchurian Territory, Anna, was held off.\r"
     "Ben lost 5/1 troops/tanks, and defender lost 1/0 troops/tanks.\r"},
    {2, "35 Ben 20/0F; 34 Anna 1/0", NoLuck + "12/79 0/12",  // after a victory there is no further attack
     "34 Ben 21/0; 35 Ben 2/0F; Anna IsDead 1 Troops 0"},
    // A second claim: rolled in a game of two, not rolled in a game of three, not possible in a game of four.
    {2, "27 Ben 1/0F; 1 Anna 1/0", "0/5 1/3 5/10 4/10 1/6 1/6 50/77 4/7 4/7 4/7",
     "25 Ben 4/1; 26 Ben 4/1; 27 Ben 3/1F"},
    {3, "27 Ben 1/0F; 1 Anna 1/0; 2 Cleo 1/0", "0/5 1/3 2/5 5/10 4/10 1/6 50/78 3/7 4/7",
     "26 Ben 4/0; 27 Ben 3/1F"},
    {4, "27 Ben 1/0F; 1 Anna 1/0; 2 Cleo 1/0; 3 Dora 1/0", "0/5 1/3 1/5 5/10 4/10 1/6 50/78 4/7 4/7",
     "26 Ben 4/1; 27 Ben 3/1F"},
    // The first turn: two claims and no attack.
    {4, "27 Ben 1/0F; 1 Anna 1/0; 2 Cleo 1/0; 3 Dora 1/0; Ben FirstTurn 1",
     "0/5 5/10 4/10 1/6 1/6 50/77 4/7 4/7 4/7", "25 Ben 4/1; 26 Ben 4/1; 27 Ben 3/1F; Ben FirstTurn 0"},
    // The free factory is built in the strongest territory, a tank counting three, and in the last of equals.
    {2, "27 Ben 2/1; 35 Ben 4/0; 26 Anna 0/0; 34 Anna 0/0; Ben FirstTurn 1", FirstTurn + "12/78",
     "27 Ben 3/1F; 35 Ben 5/0; Ben Factories 1 FirstTurn 0"},
    {2, "27 Ben 0/0; 35 Ben 0/0; 26 Anna 1/0; 34 Anna 1/0; Ben FirstTurn 1", FirstTurn + "12/78",
     "27 Ben 1/0; 35 Ben 1/0F; Ben Factories 1 FirstTurn 0"},
    // A scan forward from the last slot, and one backward that goes on from the territory just claimed.
    {2, "4 Ben 1/0F; 35 Ben 1/0; 40 Anna 1/0", "0/5 1/3 4/10 5/10 1/6 2/6 50/76 3/7 3/7 3/7 3/7",
     "4 Ben 3/0F; 5 Ben 4/0; 8 Ben 4/0D; 35 Ben 3/0"},
    {2, "4 Ben 1/0F; 35 Ben 1/0; 40 Anna 1/0", "0/5 1/3 5/10 4/10 1/6 2/6 50/76 3/7 3/7 3/7 3/7",
     "4 Ben 3/0F; 29 Ben 4/0D; 34 Ben 4/0; 35 Ben 3/0"},
    // Three troops do not attack; 5 against 1 are too few.
    {2, "27 Ben 2/90F; 26 Anna 0/0; 35 Ben 4/0; 34 Anna 1/0; Ben HasNuke 1", NoLuck + "12/78",
     "27 Ben 3/90F; 35 Ben 5/0"},
    // 6 against 1 are enough; a tank counts two for the attacker and three for the defender.
    {2, "27 Ben 5/0F; 26 Anna 1/0; 35 Ben 3/1; 34 Anna 1/0; 1 Anna 0/0", NoLuck + "12/78 0/12 0/12",
     "26 Ben 6/0; 27 Ben 2/0F; 34 Ben 4/1; 35 Ben 2/0; Anna Troops 0"},
    {2, "27 Ben 7/0F; 26 Anna 1/1; 35 Ben 8/0; 34 Anna 1/1", NoLuck + "12/78 0/12 0/12 0/12 0/12",
     "27 Ben 8/0F; 34 Ben 9/0; 35 Ben 2/0; Anna Tanks 1 Troops 1"},
    // A bomb is dropped on the first territory with 20 troops.
    {3, "35 Ben 2/0F; 1 Anna 19/50; 34 Cleo 20/7; 36 Anna 400/0; Ben HasNuke 1", NoLuck + "12/79",
     "34 Cleo 10/6; 35 Ben 3/0F; Ben HasNuke 0; Cleo Tanks 6 Troops 10"},
    // The first territory that can attacks its first possible slot; a captured one can attack next.
    {2,
     "4 Ben 30/0F; 21 Ben 900/0; 3 Anna 3/0; 7 Anna 4/0; 8 Anna 2/0; 20 Anna 1/0; "
     "5 Anna 99/0; 19 Anna 999/0; 30 Anna 999/0",
     NoLuck + "12/78 0/12 0/12 0/12 0/12 0/12 0/12 0/12",
     "3 Ben 2/0; 4 Ben 2/0F; 7 Ben 30/0; Anna Troops 2100"},
};

TEST(ComputerTurn, FollowsTheRules) {
    for (const ComputerRow& row : ComputerTurns) {
        SCOPED_TRACE(row.world);
        Play play(row.players, row.world + "; Ben IsComputer 1", row.rolls);
        play.Game.CurrentPlayer = 1;
        const bool wins = row.players == 2 && row.changes.find("IsDead") != std::string::npos;
        const std::string shown = "RefreshMap; ShowReport 2 The computer did the following:; ";
        play.Then("computer",
                  "CloseReport; 'Vorlund - Ben's turn'; " +
                      (wins ? "ShowGameOver Ben wins; " + shown +
                                  "'Vorlund - Ben wins'; Announce Player 2, Ben, wins the game!; "
                            : shown),
                  row.changes);
        EXPECT_EQ(play.Seen.Shown.Title, "Computer player Ben's status");
        EXPECT_EQ(play.Seen.Shown.Body, row.body.empty() ? play.Seen.Shown.Body : row.body);
        EXPECT_TRUE(play.Game.GameOver == wins && play.Game.ComputerTurnEnded != wins);
        EXPECT_EQ(play.Chance.Reseedings, 1);
    }
}

}  // namespace
}  // namespace vorlund
