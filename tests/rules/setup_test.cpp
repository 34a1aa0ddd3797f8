#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "setup/new_game.h"
#include "setup/selection.h"
#include "state/consistent.h"
#include "state/world.h"
#include "tests/rules/scripted_random.h"

namespace vorlund {
namespace {

using Kind = Selection::Step::Kind;

GameState Table(const std::vector<std::string>& names) {
    GameState game;
    InitWorld(game);
    game.NumPlayers = static_cast<std::int16_t>(names.size());
    EXPECT_EQ(EnterNames(game, names), std::nullopt);
    return game;
}

TEST(EnterNames, TellsHumansFromComputersAndKeepsNamesAsTyped) {
    struct Row {
        const char* typed;
        const char* name;  // in row 3
        bool isComputer;
    };
    const std::vector<Row> rows{
        {"COMP", "CompPlayer3", true},
        {"cOmPuTeR", "CompPlayer3", true},
        {" comp", " comp", false},
        {"Computer 2", "Computer 2", false},
        {"CompPlayer3", "CompPlayer3", false},
        {"   ", "   ", false},
        {"Anna", "Anna", false},
        {"J\xC3\xBCrgen, Dr", "J\xC3\xBCrgen, Dr", false},
    };
    for (const Row& row : rows) {
        GameState game;
        game.NumPlayers = 3;
        game.GameLoaded = true;
        const std::vector<std::string> names{"Anna", "computer", row.typed};
        EXPECT_EQ(EnterNames(game, names), std::nullopt) << row.typed;
        EXPECT_EQ(game.Players[0].Name, "Anna");
        EXPECT_EQ(game.Players[1].Name, "CompPlayer2");
        EXPECT_EQ(game.Players[2].Name, row.name);
        EXPECT_FALSE(game.Players[0].IsComputer);
        EXPECT_TRUE(game.Players[1].IsComputer);
        EXPECT_EQ(game.Players[2].IsComputer, row.isComputer) << row.typed;
        EXPECT_FALSE(game.GameLoaded);
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
        {"a pasted line end", {"A\r\nB", "Bo"}, {"Player 1's name cannot be saved; enter another.", 1}},
        {"letters that no saved game can hold",
         {"Bo", "\xE6\x84\x9B", "\"Ann\""},
         {"Player 3's name cannot be saved; enter another.", 2}},
    };
    for (const Row& row : rows) {
        GameState game;
        game.NumPlayers = static_cast<std::int16_t>(row.names.size());
        const GameState before = game;
        const auto refusal = EnterNames(game, row.names).value_or(NamesRefusal{});
        EXPECT_EQ(refusal.Prompt, row.refusal.Prompt) << row.what;
        EXPECT_EQ(refusal.Beeps, row.refusal.Beeps) << row.what;
        EXPECT_TRUE(game == before) << row.what;
    }
}

TEST(EnterNames, AsksForAHuman) {
    GameState game;
    game.NumPlayers = 5;
    game.GameLoaded = true;
    std::vector<std::string> names(5, "Computer");
    EXPECT_EQ(EnterNames(game, names), (NamesRefusal{"You must have at least one human player.", 0}));
    EXPECT_EQ(game.Players[4].Name, "CompPlayer5");
    EXPECT_TRUE(game.GameLoaded);
    names[4] = "Eve";
    EXPECT_EQ(EnterNames(game, names), std::nullopt);
    EXPECT_EQ(game.Players[4].Name, "Eve");
    EXPECT_FALSE(game.Players[4].IsComputer);
}

TEST(Selection, TheFirstSelectorIsAlwaysHuman) {
    GameState game = Table({"comp", "Anna", "comp"});
    ScriptedRandom random({For(0, 3), For(2, 3), For(1, 3)});
    Selection selection(game, random);
    EXPECT_EQ(selection.Open(), "Player 2, Anna, has been chosen to select first.");
    EXPECT_EQ(game.StartingPlayer, 1);
    EXPECT_EQ(game.CurrentPlayer, 1);
    EXPECT_EQ(random.Reseedings, 3);
}

TEST(Selection, HumansSelectInTurnThenComputersAwayFromEverybody) {
    GameState game = Table({"Anna", "comp", "Carl", "comp"});
    game.Players[0].Oil = 7;  // left over
    // The computers pass by a taken territory, a neighbour of a human's and one of each other's.
    ScriptedRandom random({For(2, 4), For(34, 42), For(8, 42), For(26, 42), For(25, 42), For(0, 42)});
    Selection selection(game, random);
    EXPECT_EQ(selection.Open(), "Player 3, Carl, has been chosen to select first.");
    EXPECT_EQ(selection.Entr("7"),
              (Selection::Step{Kind::NextHuman,
                               "Player 3 selected Midwest USA\rPlayer 1, Anna, select a territory."}));
    EXPECT_EQ(game.CurrentPlayer, 0);
    EXPECT_EQ(random.Reseedings, 3);  // the computer in between was looked at too
    EXPECT_EQ(selection.Entr(" 35 "), (Selection::Step{Kind::Ended, "Player 1 selected Japan\r"}));
    EXPECT_EQ(game.CurrentPlayer, 2);
    EXPECT_EQ(random.Reseedings, 4);

    const std::vector<int> places{34, 26, 6, 0};
    for (int p = 0; p < 4; ++p) {
        const Territory& territory = game.TerritoryAt(places[static_cast<std::size_t>(p)]);
        EXPECT_EQ(territory.Owner, p);
        EXPECT_TRUE(territory.HasFactory);
        EXPECT_EQ(territory.Troops, 10);
        const Player& player = game.PlayerAt(p);
        EXPECT_EQ(player.Troops, 10);
        EXPECT_EQ(player.Factories, 1);
        EXPECT_EQ(player.Money, player.IsComputer ? 9000 : 100);
        EXPECT_EQ(player.Oil, player.IsComputer ? 9000 : 0);
    }
    EXPECT_TRUE(Consistent(game));
}

TEST(Selection, RejectsAndKeepsTheSelector) {
    GameState game = Table({"Anna", "Bo"});
    ScriptedRandom random({For(0, 2)});
    Selection selection(game, random);
    selection.Open();
    selection.Entr("17");
    const GameState before = game;
    for (const char* typed : {"", " ", "ab", "0", "43", "-1", ".5", "42.1", "1e9"}) {
        EXPECT_EQ(
            selection.Entr(typed),
            (Selection::Step{Kind::Rejected, "Invalid territory selection.\rPlayer 2, Bo, select again."}))
            << typed;
    }
    for (const char* typed : {"17", "16.6", "17.5"}) {
        EXPECT_EQ(
            selection.Entr(typed),
            (Selection::Step{Kind::Rejected, "Territory already occupied.\rPlayer 2, Bo, select again."}))
            << typed;
    }
    EXPECT_TRUE(game == before);
    EXPECT_EQ(random.Reseedings, 2);
}

}  // namespace
}  // namespace vorlund
