#include <clocale>
#include <cstdlib>
#include <set>

#include "setup/new_game.h"
#include "setup/selection.h"
#include "tests/engine/games.h"
#include "tests/rules/play.h"

namespace vorlund {
namespace {

/// That of the environment, as the toolkit's application would have set it, before any test begins.
const char* const Locale = std::setlocale(LC_ALL, "");

TEST(Locale, OfTheEnvironmentIsThere) {
    EXPECT_TRUE(Locale != nullptr || std::getenv("LOCPATH") == nullptr);
}

using Names = std::vector<std::string>;

/// Enters the names: the refusal with its beeps, or who plays, with a C behind each computer player.
std::string Enter(GameState& game, const Names& typed) {
    game = FreshGame();
    game.NumPlayers = static_cast<std::int16_t>(typed.size());
    game.GameLoaded = true;
    if (const auto refusal = EnterNames(game, typed)) {
        return refusal->Prompt + " " + std::to_string(refusal->Beeps);
    }
    std::string named = game.GameLoaded ? "loaded" : "";
    for (int p = 0; p < game.NumPlayers; ++p) {
        named += game.PlayerAt(p).Name + (game.PlayerAt(p).IsComputer ? " C|" : "|");
    }
    return named;
}

TEST(EnterNames, TellsHumansFromComputersOrNamesTheLastBadRow) {
    GameState game;
    EXPECT_EQ(Enter(game, {"COMP", "comp 2", "cOmPuTeR", "   "}), "CompPlayer1 C|comp 2|CompPlayer3 C|   |");
    EXPECT_EQ(Enter(game, {"", "A\nB", "", "Di"}), "Enter a name for Player 3. 2");
    EXPECT_EQ(Enter(game, {"A\r\nB", "\u611B", "\"An", "Bo"}),
              "Player 3's name cannot be saved; enter another. 3");
    EXPECT_EQ(Enter(game, {"comp", "computer"}), "You must have at least one human player. 0");
}

TEST(Selection, HumansSelectInTurnThenComputersAwayFromEverybody) {
    GameState game;
    Enter(game, {"Anna", "comp", "Carl", "comp"});
    game.Players[0].Oil = 7;  // left over
    const GameState before = game;
    // The lot falls on a computer first. The computers pass by a taken territory, a neighbour of a human's
    // and one of each other's.
    ScriptedRandom random("1/4 2/4 34/42 8/42 26/42 25/42 0/42");
    Selection selection(game, random);
    EXPECT_EQ(selection.Open(), "Player 3, Carl, has been chosen to select first.");
    const auto enter = [&](const char* typed) {
        const auto [kind, message] = selection.Entr(typed);
        return message + std::to_string(static_cast<int>(kind)) + std::to_string(random.Reseedings);
    };
    EXPECT_EQ(enter("7"), "Player 3 selected Midwest USA\rPlayer 1, Anna, select a territory.14");
    for (const char* const typed : {"", "ab", "0", "43", ".5", "42.1", "1e9"}) {
        EXPECT_EQ(enter(typed), "Invalid territory selection.\rPlayer 1, Anna, select again.04");
    }
    for (const char* const typed : {"7", "6.6", "7.5"}) {
        EXPECT_EQ(enter(typed), "Territory already occupied.\rPlayer 1, Anna, select again.04");
    }
    EXPECT_EQ(enter(" 35 "), "Player 1 selected Japan\r25");
    EXPECT_TRUE(game.CurrentPlayer == 2 && game.StartingPlayer == 2);
    EXPECT_EQ(Changes(before, game),
              "1 CompPlayer4 10/0F; 7 Carl 10/0F; 27 CompPlayer2 10/0F; 35 Anna 10/0F; "
              "Anna Factories 1 Money 100 Oil 0 Troops 10; "
              "CompPlayer2 Factories 1 Money 9000 Oil 9000 Troops 10; "
              "Carl Factories 1 Money 100 Troops 10; "
              "CompPlayer4 Factories 1 Money 9000 Oil 9000 Troops 10");
}

TEST(World, ResetClearsWhatAGameChangesAndNothingElse) {
    const GameState before = NewGame(3, "6 Ben 7/0F; Ben Money 12 NuclearLevel 2 MovesLeft 1; Cleo IsDead 1");
    GameState game = before;
    InitWorld(game);
    EXPECT_EQ(
        Changes(before, game),
        "6 nobody 0/0; Anna FirstTurn 1; Ben FirstTurn 1 NuclearLevel 0 Troops 0; Cleo FirstTurn 1 IsDead 0");
    EXPECT_EQ(game.Players[1].Name, "Ben");
}

TEST(ClockRandom, IsUniformBelowOneAndNeverRepeatsOnReseeding) {
    ClockRandom random;
    std::array<int, 12> seen{};
    for (int i = 0; i < 12000; ++i) {
        ++seen.at(static_cast<std::size_t>(random.Draw(12)));
    }
    const auto [least, most] = std::minmax_element(seen.begin(), seen.end());
    EXPECT_TRUE(*least > 750 && *most < 1250);
    std::set<float> firsts;
    for (int i = 0; i < 100; ++i) {
        random.Reseed();
        EXPECT_TRUE(firsts.insert(random.Uniform()).second);
    }
}

TEST(Consistent, FindsEachBrokenRecord) {
    const std::string land = "4 Anna 1/0; 5 Ben 0/0; ";
    for (const std::string& world :
         {land + "9 Cleo 0/0", land + "9 Anna -1/0", land + "9 Anna 0/-1", land + "Anna NuclearLevel 4",
          land + "Anna IsDead 1", std::string("4 Anna 0/0")}) {
        EXPECT_FALSE(Consistent(NewGame(2, world))) << world;
    }
    GameState sound = NewGame(2, land);
    EXPECT_TRUE(Consistent(sound));
    for (const auto damage :
         {+[](GameState& g) { g.CurrentPlayer = 2; }, +[](GameState& g) { g.Players[1].Owns[3] = true; },
          +[](GameState& g) { g.Territories[9].Occupied = true; },
          +[](GameState& g) { g.Territories[9].Tanks = 1; }, +[](GameState& g) { g.DeadPlayers = 1; }}) {
        GameState game = sound;
        damage(game);
        EXPECT_FALSE(Consistent(game));
    }
}

}  // namespace
}  // namespace vorlund
