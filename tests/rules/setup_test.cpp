#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "setup/new_game.h"
#include "setup/selection.h"
#include "state/consistent.h"
#include "tests/engine/games.h"
#include "tests/rules/scripted_random.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

using Kind = Selection::Step::Kind;
using Step = Selection::Step;

GameState PlayersNamed(const std::vector<std::string>& names) {
    GameState game = FreshGame();
    game.NumPlayers = static_cast<std::int16_t>(names.size());
    EXPECT_EQ(EnterNames(game, names), std::nullopt);
    return game;
}

TEST(EnterNames, TellsHumansFromComputersAndKeepsNamesAsTyped) {
    for (const std::string typed : {"COMP", "cOmPuTeR"}) {
        const GameState game = PlayersNamed({"Anna", typed});
        EXPECT_EQ(game.Players[1].Name, "CompPlayer2");
        EXPECT_TRUE(game.Players[1].IsComputer);
    }
    for (const std::string typed : {" comp", "Computer 2", "   ", "J\u00FCrgen, Dr"}) {
        const GameState game = PlayersNamed({"comp", typed});
        EXPECT_EQ(game.Players[1].Name, typed);
        EXPECT_FALSE(game.Players[1].IsComputer) << typed;
    }
}

TEST(EnterNames, RefusesMissingAndLostNamesAndNamesTheLastRow) {
    struct Row {
        const char* what;
        std::vector<std::string> names;
        NamesRefusal refusal;
    };
    const std::vector<Row> rows{
        {"first and third of four missing", {"", "Bo", "", "Di"}, {"Enter a name for Player 3.", 2}},
        {"a missing name goes before one that is lost", {"", "A\nB"}, {"Enter a name for Player 1.", 1}},
        {"what no saved game can hold",
         {"A\r\nB", "\u611B", "\"Ann\"", "Bo"},
         {"Player 3's name cannot be saved; enter another.", 3}},
    };
    for (const Row& row : rows) {
        GameState game;
        game.NumPlayers = static_cast<std::int16_t>(row.names.size());
        const GameState before = game;
        EXPECT_EQ(EnterNames(game, row.names), row.refusal) << row.what;
        EXPECT_EQ(game, before) << row.what;
    }
    GameState game;
    game.NumPlayers = 2;
    game.GameLoaded = true;
    EXPECT_EQ(EnterNames(game, std::vector<std::string>{"comp", "comp"}),
              (NamesRefusal{"You must have at least one human player.", 0}));
    EXPECT_TRUE(game.GameLoaded);
    EXPECT_EQ(EnterNames(game, std::vector<std::string>{"comp", "Eve"}), std::nullopt);
    EXPECT_FALSE(game.GameLoaded);
}

TEST(Selection, HumansSelectInTurnThenComputersAwayFromEverybody) {
    GameState game = PlayersNamed({"Anna", "comp", "Carl", "comp"});
    game.Players[0].Oil = 7;  // left over
    const GameState before = game;
    // The lot falls on a computer first. The computers pass by a taken territory, a neighbour of a human's
    // and one of each other's.
    ScriptedRandom random(
        {For(1, 4), For(2, 4), For(34, 42), For(8, 42), For(26, 42), For(25, 42), For(0, 42)});
    Selection selection(game, random);
    EXPECT_EQ(selection.Open(), "Player 3, Carl, has been chosen to select first.");
    EXPECT_EQ(game.StartingPlayer, 2);
    EXPECT_EQ(random.Reseedings, 2);
    EXPECT_EQ(selection.Entr("7"), (Step{Kind::NextHuman,
                                         "Player 3 selected Midwest USA\r"
                                         "Player 1, Anna, select a territory."}));
    const GameState between = game;
    const std::string again = "\rPlayer 1, Anna, select again.";
    for (const char* typed : {"", "ab", "0", "43", ".5", "42.1", "1e9"}) {
        EXPECT_EQ(selection.Entr(typed), (Step{Kind::Rejected, "Invalid territory selection." + again}));
    }
    for (const char* typed : {"7", "6.6", "7.5"}) {
        EXPECT_EQ(selection.Entr(typed), (Step{Kind::Rejected, "Territory already occupied." + again}));
    }
    EXPECT_EQ(game, between);
    EXPECT_EQ(random.Reseedings, 4) << "the computer in between was looked at too";
    EXPECT_EQ(selection.Entr(" 35 "), (Step{Kind::Ended, "Player 1 selected Japan\r"}));
    EXPECT_EQ(random.Reseedings, 5);
    EXPECT_EQ(game.CurrentPlayer, 2);
    EXPECT_EQ(Changes(before, game),
              "1 CompPlayer4 10/0 F; 7 Carl 10/0 F; 27 CompPlayer2 10/0 F; 35 Anna 10/0 F; "
              "Anna Money 100 Oil 0 Troops 10 Factories 1; "
              "CompPlayer2 Money 9000 Oil 9000 Troops 10 Factories 1; "
              "Carl Money 100 Troops 10 Factories 1; "
              "CompPlayer4 Money 9000 Oil 9000 Troops 10 Factories 1");
    EXPECT_TRUE(Consistent(game));
}

}  // namespace
}  // namespace vorlund
