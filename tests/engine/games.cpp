#include "tests/engine/games.h"

#include <array>

#include "setup/new_game.h"
#include "setup/selection.h"
#include "state/int16.h"
#include "state/ownership.h"
#include "state/world.h"
#include "tests/engine/entries.h"

namespace vorlund {
namespace {

constexpr std::array Names{"Anna",       "comp",   "COMPUTER", "Computer", "a,b",  " blank in",
                           "Zo\xC3\xAB", "\"q\"",  "",         "1",        "True", "\xE2\x82\xAC uro",
                           "\xD0\x96uk", "tab\tb", "0",        "-1",       "x",    "CompPlayer1"};

/// Mostly small, sometimes at the end of the range.
std::int16_t Units(Random& hands, int most) {
    return hands.Draw(50) == 0 ? ClampInt16(32767 - hands.Draw(3)) : ClampInt16(hands.Draw(most));
}

void Populate(GameState& game, Random& hands, int t) {
    Player& owner = game.PlayerAt(game.TerritoryAt(t).Owner);
    Territory& territory = game.TerritoryAt(t);
    // A human's totals are exact, so they bound what may stand on the map.
    territory.Troops = ClampInt16(std::min<int>(Units(hands, 60), 32767 - owner.Troops));
    territory.Tanks = ClampInt16(std::min<int>(Units(hands, 8), 32767 - owner.Tanks));
    territory.HasFactory = hands.Draw(4) == 0;
    territory.HasDefense = hands.Draw(4) == 0;
    Add(owner.Troops, territory.Troops);
    Add(owner.Tanks, territory.Tanks);
    Add(owner.Factories, territory.HasFactory ? 1 : 0);
}

void Equip(Player& player, Random& hands) {
    player.Money = ClampInt16(hands.Draw(5) == 0 ? hands.Draw(65536) - 32768 : hands.Draw(800));
    player.Oil = Units(hands, 100);
    for (std::int16_t* const level : {&player.EconomyLevel, &player.WarfareLevel, &player.NuclearLevel}) {
        *level = ClampInt16(hands.Draw(4));
    }
    player.DebtTurns = ClampInt16(hands.Draw(3));
    player.HasNuke = hands.Draw(3) == 0;
    player.FirstTurn = hands.Draw(6) == 0;
    player.MovesLeft = player.AttacksLeft = 2;
    Add(player.Troops, player.IsComputer ? -hands.Draw(500) : 0);
}

}  // namespace

std::vector<std::string> RandomNames(Random& hands) {
    std::vector<std::string> names(static_cast<std::size_t>(2 + hands.Draw(4)));
    for (std::string& name : names) {
        name = Names[static_cast<std::size_t>(
            hands.Draw(hands.Draw(4) == 0 ? static_cast<int>(Names.size()) : 3))];
    }
    return names;
}

GameState FreshGame() {
    GameState game;
    InitWorld(game);
    return game;
}

GameState RandomNewGame(Random& hands, Random& chance) {
    GameState game = FreshGame();
    for (;;) {
        const std::vector<std::string> names = RandomNames(hands);
        game.NumPlayers = static_cast<std::int16_t>(names.size());
        if (!EnterNames(game, names)) {
            break;
        }
    }
    Selection selection(game, chance);
    selection.Open();
    while (selection.Entr(TerritoryEntry(game, hands)).What != Selection::Step::Kind::Ended) {
    }
    return game;
}

GameState RandomPosition(Random& hands) {
    GameState game = FreshGame();
    game.NumPlayers = static_cast<std::int16_t>(2 + hands.Draw(4));
    for (int p = 0; p < game.NumPlayers; ++p) {
        game.PlayerAt(p).Name = "P" + std::to_string(p + 1);
        game.PlayerAt(p).IsComputer = p > 0 && hands.Draw(2) == 0;
    }
    const int emptiness = hands.Draw(4);
    for (int t = 0; t < NumTerritories; ++t) {
        const int owner = t == 0 ? 0 : t == NumTerritories - 1 ? 1 : hands.Draw(game.NumPlayers + emptiness);
        if (owner < game.NumPlayers) {
            Claim(game, t, owner);
            Populate(game, hands, t);
        }
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        Player& player = game.PlayerAt(p);
        Equip(player, hands);
        if (std::find(player.Owns.begin(), player.Owns.end(), true) == player.Owns.end()) {
            player.IsDead = true;
            ++game.DeadPlayers;
        }
    }
    return game;
}

}  // namespace vorlund
