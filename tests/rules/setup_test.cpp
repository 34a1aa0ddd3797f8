// SPDX-License-Identifier: MIT
#include <clocale>
#include <cstdlib>
#include <set>

#include "setup/new_game.h"
#include "setup/selection.h"
#include "tests/engine/games.h"
#include "tests/rules/play.h"

namespace vorlund {
namespace {

/// Set from the environment before any test, as QApplication does.
const char* const Locale = std::setlocale(LC_ALL, "");

TEST(Locale, OfTheEnvironmentExists) {
    EXPECT_TRUE(Locale != nullptr || std::getenv("LOCPATH") == nullptr);
}

/// Enters names for a new game. Returns the refusal and its number of beeps, or an empty text.
std::string Enter(GameState& game, const std::vector<std::string>& typed) {
    game = FreshGame();
    SetNumPlayers(game, static_cast<int>(typed.size()));
    game.GameLoaded = true;
    const auto refusal = EnterNames(game, typed);
    return refusal ? refusal->Prompt + " " + std::to_string(refusal->Beeps) : "";
}

TEST(EnterNames, MakesHumansAndComputersOrRefusesTheLastBadRow) {
    const std::string umlauts = "\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4\u00E4";
    GameState game;
    EXPECT_EQ(Enter(game, {"COMP", "comp 2", "cOmPuTeR", umlauts}), "");
    EXPECT_FALSE(game.GameLoaded);
    EXPECT_EQ(game.Players[1].Name + "|" + game.Players[3].Name, "comp 2|" + umlauts);
    EXPECT_EQ(Changes(FreshGame(), game), "CompPlayer1 IsComputer 1; CompPlayer3 IsComputer 1");
    EXPECT_EQ(Enter(game, {"", "A\nB", "", "Di"}), "Enter a name for Player 3. 2");
    EXPECT_EQ(Enter(game, {"a\",b", "\u0080", "\"An", "A\tB", "\xE4"}),
              "Player 5's name cannot be saved; enter another. 5");
    EXPECT_EQ(Enter(game, {"comp", "computer"}), "You must have at least one human player. 0");
}

TEST(Selection, OfHumansInTurnThenOfComputersWithoutNeighbours) {
    GameState game;
    Enter(game, {"Anna", "comp", "Carl", "comp"});
    Put(game, "Anna Oil 7 Factories 3 Troops 9");  // from an earlier game
    const GameState before = game;
    // The first draw of a selector gives a computer. The computers' draws of an occupied territory, of a
    // human's neighbour and of a computer's neighbour are repeated.
    ScriptedRandom random("1/4 2/4 34/42 8/42 26/42 25/42 0/42");
    Selection selection(game, random);
    EXPECT_EQ(selection.Open(), "Player 3, Carl, has been chosen to select first.");
    const auto enter = [&](const char* typed) {
        constexpr std::array Kinds{"Rejected: ", "NextHuman: ", "Ended: "};
        const auto [kind, message] = selection.Entr(typed);
        return Kinds.at(static_cast<std::size_t>(kind)) + message;
    };
    EXPECT_EQ(enter("7"), "NextHuman: Player 3 selected Midwest USA\rPlayer 1, Anna, select a territory.");
    EXPECT_EQ(random.Reseedings, 4);
    for (const char* const typed : {"", "ab", "0", "43", ".5", "42.1", "1e9"}) {
        EXPECT_EQ(enter(typed), "Rejected: Invalid territory selection.\rPlayer 1, Anna, select again.");
    }
    for (const char* const typed : {"7", "6.6", "7.5"}) {
        EXPECT_EQ(enter(typed), "Rejected: Territory already occupied.\rPlayer 1, Anna, select again.");
    }
    EXPECT_EQ(enter(" 35 "), "Ended: Player 1 selected Japan\r");
    EXPECT_EQ(random.Reseedings, 5);
    EXPECT_TRUE(game.CurrentPlayer == 2 && game.StartingPlayer == 2);
    EXPECT_EQ(Changes(before, game),
              "1 CompPlayer4 10/0F; 7 Carl 10/0F; 27 CompPlayer2 10/0F; 35 Anna 10/0F; "
              "Anna Factories 1 Money 100 Oil 0 Troops 10; "
              "CompPlayer2 Factories 1 Money 9000 Oil 9000 Troops 10; "
              "Carl Factories 1 Money 100 Troops 10; "
              "CompPlayer4 Factories 1 Money 9000 Oil 9000 Troops 10");
}

TEST(ClockRandom, IsUniformAndReseedsWithoutRepeating) {
    std::set<std::pair<int, int>>
        starts;  // two draws each, because single ones are sometimes equal by chance
    float sum = 0;
    for (const std::uint64_t now : {1ULL, 2ULL, 1ULL << 40U}) {
        ClockRandom random([now] { return now; });  // a clock that does not tick between reseedings
        for (int i = 0; i < 100; ++i) {
            random.Reseed();
            const int first = random.Draw(1 << 24);
            sum += static_cast<float>(first);
            starts.emplace(first, random.Draw(1 << 24));
        }
        EXPECT_EQ(random.Draw(0), 0);
    }
    EXPECT_EQ(starts.size(), 300U);
    EXPECT_NEAR(sum / (1 << 24), 150, 15);
    EXPECT_NE(ClockRandom().Draw(1 << 24), ClockRandom().Draw(1 << 24));
}

TEST(ResetGame, ClearsTerritoriesPlayersAndTheEndOfTheGame) {
    GameState game = NewGame(2,
                             "7 Anna 1/1FD; Anna Money 5 Oil 6 DebtTurns 1 EconomyLevel 1 WarfareLevel 1 "
                             "NuclearLevel 1 HasNuke 1 IsComputer 1 IsDead 1");
    game.GameOver = game.ComputerTurnEnded = true;
    const GameState before = game;
    ResetGame(game);
    EXPECT_EQ(Changes(before, game),
              "7 nobody 0/0; Anna DebtTurns 0 EconomyLevel 0 FirstTurn 1 HasNuke 0 IsComputer 0 IsDead 0 "
              "NuclearLevel 0 Tanks 0 Troops 0 WarfareLevel 0; Ben FirstTurn 1");
    EXPECT_FALSE(game.GameOver || game.ComputerTurnEnded || Owns(game, 0, 6));
}

TEST(FirstFlaw, NamesTheFieldOfEachInvariant) {
    const std::string land = "4 Anna 1/0; 5 Ben 0/0; ";
    const auto flawOf = [](const GameState& game) { return FirstFlaw(game).value_or(Flaw{}).What; };
    const std::vector<std::pair<std::string, std::string>> worlds{
        {land, ""},
        {"4 Anna 1/0", "Player 2 owns no territory and must be dead."},
        {land + "9 Cleo 0/0", "Owner of Mexico must be a player of this game, or 9 for nobody."},
        {land + "9 Anna -1/0", "Troops of Mexico must be a whole number from 0 to 32767."},
        {land + "9 Anna 0/-1", "Tanks of Mexico must be a whole number from 0 to 32767."},
        {land + "Ben EconomyLevel 4", "EconomyLevel of Player 2 must be a whole number from 0 to 3."},
        {land + "Ben NuclearLevel 4", "NuclearLevel of Player 2 must be a whole number from 0 to 3."},
        {land + "Anna WarfareLevel -1", "WarfareLevel of Player 1 must be a whole number from 0 to 3."},
        {land + "Anna IsDead 1", "Player 1 owns territories and must be alive."},
    };
    for (const auto& [world, flaw] : worlds) {
        EXPECT_EQ(flawOf(NewGame(2, world)), flaw);
    }
    std::array<GameState, 6> games;
    games.fill(NewGame(2, land));
    games[0].CurrentPlayer = 2;
    games[1].Players[4].Owns[3] = true;
    games[2].Territories[9].Occupied = true;
    games[3].Territories[9].Stationed.Tanks = 1;
    games[4].DeadPlayers = 1;
    games[5].NumPlayers = 6;
    std::string flaws;
    for (const GameState& game : games) {
        flaws += flawOf(game) + "|";
    }
    EXPECT_EQ(flaws,
              "CurrentPlayer of the game must be a whole number from 0 to 1.|"
              "Player 5's Owns and the Owner of Quebec Territory do not agree.|"
              "Central America must be Occupied when it has an Owner, and only then.|"
              "Central America belongs to nobody, so nothing can stand in it.|"
              "DeadPlayers of the game must be 0.|"
              "NumPlayers of the game must be a whole number from 2 to 5.|");
}

}  // namespace
}  // namespace vorlund
