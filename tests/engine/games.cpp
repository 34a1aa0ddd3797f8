// SPDX-License-Identifier: MIT
#include "tests/engine/games.h"

#include <algorithm>
#include <vector>

#include "savegame/format.h"
#include "setup/new_game.h"
#include "setup/selection.h"
#include "state/consistent.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {
namespace {

constexpr std::array NameEntries{
    "Anna",  "comp",      "COMPUTER", "Zo\u00EB", "a,b",      " lead",      "trail ",      "\"",
    "\"q\"", "q\"q",      "",         "1",        "True",     "-1",         "CompPlayer1", "..",
    "../x",  "a/b",       "CON",      "%1%2%s",   "<b>x",     "&amp;&&",    "x\ny",        "\r",
    "\tx",   "\u202Eabc", "\u20AC5",  "\u0416uk", "e\u0301e", "\U0001F680", "MMMMMMMMMMMM"};

constexpr std::array OddEntries{"",       " ",    "abc",  "0",     "-1",  "-0.4", ".5",    "1.5",
                                "2.5",    "41.5", "42.5", "43",    "4e4", "-9e9", "32767", "32768",
                                "-32768", "1e3",  "1e-9", "1e999", "+3",  " 7 ",  "7 7",   "0x1F",
                                "inf",    "nan",  "1,5",  "--1",   "+-1", "5.",   ".",     "1e",
                                "\t1",    "1\n",  "\r",   "\"1\"", "½",   "99",   "3.9",   "-.5"};

/// Mostly below `most`, sometimes at the end of the range, but never above `room`.
std::int16_t Count(Random& random, int most, int room = 32767) {
    return ClampInt16(std::min(OneIn(50, random) ? 32767 - random.Draw(3) : random.Draw(most), room));
}

int OwnTerritory(const GameState& game, Random& random) {
    std::vector<int> own;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, game.CurrentPlayer, t)) {
            own.push_back(t);
        }
    }
    return own.empty() ? random.Draw(NumTerritories) : OneOf(own, random);
}

/// The number of a territory, mostly one of the current player's.
std::string TerritoryEntry(const GameState& game, Random& random) {
    const int t = OneIn(4, random) ? random.Draw(NumTerritories) : OwnTerritory(game, random);
    return OneIn(8, random) ? OneOf(OddEntries, random) : std::to_string(t + 1);
}

}  // namespace

GameState FreshGame() {
    GameState game;
    InitWorld(game);
    return game;
}

GameState RandomNewGame(Random& random, Random& chance) {
    GameState game = FreshGame();
    std::vector<std::string> names;
    do {
        names.resize(static_cast<std::size_t>(2 + random.Draw(4)));
        std::generate(names.begin(), names.end(), [&] { return NameEntry(random); });
        SetNumPlayers(game, static_cast<int>(names.size()));
    } while (EnterNames(game, names));
    Selection selection(game, chance);
    selection.Open();
    while (selection.Entr(TerritoryEntry(game, random)).What != Selection::Step::Kind::Ended) {
    }
    return game;
}

GameState RandomPosition(Random& random) {
    GameState game = NewGame(2 + random.Draw(4));
    const int emptiness = random.Draw(4);
    for (int t = 0; t < NumTerritories; ++t) {
        const int p = t < 2 ? t : random.Draw(game.NumPlayers + emptiness);
        if (p < game.NumPlayers) {
            // A human's total must stay exact, so it limits the units on the map.
            const Player& owner = game.PlayerAt(p);
            Give(game, t, p, Count(random, 60, 32767 - owner.Total.Troops),
                 Count(random, 8, 32767 - owner.Total.Tanks));
            if (OneIn(4, random)) {
                GiveFactory(game, t);
            }
            game.TerritoryAt(t).HasDefense = OneIn(4, random);
        }
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        Player& player = game.PlayerAt(p);
        player.IsComputer = p > 0 && OneIn(2, random);
        Add(player.Total.Troops, player.IsComputer ? -random.Draw(500) : 0);
        player.Money = ClampInt16(OneIn(5, random) ? random.Draw(65536) - 32768 : random.Draw(800));
        player.Oil = Count(random, 100);
        player.EconomyLevel = player.WarfareLevel = player.NuclearLevel = Count(random, 4, 3);
        player.DebtTurns = Count(random, 3, 2);
        player.HasNuke = OneIn(3, random);
        player.FirstTurn = OneIn(6, random);
        if (std::count(player.Owns.begin(), player.Owns.end(), true) == 0) {
            player.IsDead = true;
            ++game.DeadPlayers;
        }
    }
    return game;
}

std::string NameEntry(Random& random) {
    return NameEntries[static_cast<std::size_t>(
        random.Draw(OneIn(4, random) ? static_cast<int>(NameEntries.size()) : 3))];
}

std::string QuantityEntry(int limit, Random& random) {
    const int kind = random.Draw(8);
    const int amount = kind < 4 ? limit : random.Draw(std::max(limit, 0) + 2);
    return kind == 6 ? "" : kind == 7 ? OneOf(OddEntries, random) : std::to_string(amount);
}

Route RandomRoute(const GameState& game, Random& random) {
    const int from = OwnTerritory(game, random);
    const Territory& source = game.TerritoryAt(from);
    const int slot = OneOf(source.Neighbours, random);
    const int to = slot == NoNeighbour ? source.Neighbours[0] : slot;
    return {OneIn(10, random) ? TerritoryEntry(game, random) : std::to_string(from + 1),
            OneIn(10, random) ? TerritoryEntry(game, random) : std::to_string(to + 1), source.Stationed};
}

std::string BrokenRecords(const GameState& game) {
    if (!Consistent(game)) {
        return "the game is inconsistent";
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        const Player& player = game.PlayerAt(p);
        Player sum;
        for (const Territory& territory : game.Territories) {
            const bool owns = territory.Owner == p;
            Add(sum.Total, owns ? territory.Stationed : Units{});
            Add(sum.Factories, owns && territory.HasFactory ? 1 : 0);
        }
        if (!player.IsDead &&
            (player.Factories != sum.Factories || (player.Total != sum.Total && !player.IsComputer))) {
            return "the totals of player " + std::to_string(p + 1) + " are wrong";
        }
    }
    return "";
}

std::string BrokenCommands(const GameState& game, CommandSet enabled) {
    const Player& player = game.Current();
    CommandSet exact = player.IsDead ? CommandSet::Only(Command::EndTurn) : CommandSet::All();
    exact = player.FirstTurn ? exact.Without(Command::Attack) : exact;
    const bool over = game.GameOver || game.DeadPlayers == game.NumPlayers;
    return enabled == CommandSet::None() || (enabled == exact && !over) ? ""
                                                                        : "the wrong commands are enabled";
}

std::string BrokenSaving(const GameState& game) {
    const std::string bytes = WriteGame(game);
    const auto read = ReadGame(FreshGame(), bytes);
    if (const auto* bad = std::get_if<BadFile>(&read)) {
        return "the saved game is refused: " + bad->What;
    }
    GameState loaded = std::get<GameState>(read);
    // Not part of a saved game; unused records may hold names from a refused setup.
    loaded.GameLoaded = game.GameLoaded;
    loaded.StartingPlayer = game.StartingPlayer;
    std::copy(game.Players.begin() + game.NumPlayers, game.Players.end(),
              loaded.Players.begin() + game.NumPlayers);
    return loaded == game && WriteGame(loaded) == bytes ? "" : "the loaded game differs";
}

}  // namespace vorlund
