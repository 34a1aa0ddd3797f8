// SPDX-License-Identifier: MIT
#include "state/consistent.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <string_view>

#include "state/player_words.h"
#include "state/world.h"

namespace vorlund {
namespace {

using MaybeFlaw = std::optional<Flaw>;

struct Range {
    const std::int16_t& Field;
    const char* Name;
    int Low;
    int High;
};

/// The first of these fields of `whose` that is out of its range.
MaybeFlaw OutOfRange(std::string_view whose, std::initializer_list<Range> ranges) {
    for (const Range& range : ranges) {
        if (range.Field < range.Low || range.Field > range.High) {
            return Flaw{range.Name + (" of " + std::string(whose)) + " must be " +
                            RangeWords(range.Low, range.High) + ".",
                        &range.Field};
        }
    }
    return std::nullopt;
}

MaybeFlaw FlawOfOwnership(const GameState& game, int t, std::string_view name) {
    const Territory& territory = game.TerritoryAt(t);
    const bool owned = territory.Owner >= 0 && territory.Owner < game.NumPlayers;
    if (!owned && territory.Owner != NoOwner) {
        return Flaw{"Owner of " + std::string(name) + " must be a player of this game, or 9 for nobody.",
                    &territory.Owner};
    }
    if (territory.Occupied != owned) {
        return Flaw{std::string(name) + " must be Occupied when it has an Owner, and only then.",
                    &territory.Occupied};
    }
    for (int p = 0; p < MaxPlayers; ++p) {
        if (Owns(game, p, t) != (territory.Owner == p)) {
            return Flaw{PlayerWords(p) + "'s Owns and the Owner of " + std::string(name) + " do not agree.",
                        &game.PlayerAt(p).Owns[static_cast<std::size_t>(t)]};
        }
    }
    return std::nullopt;
}

MaybeFlaw FlawOfContents(const Territory& territory, std::string_view name) {
    constexpr int Highest = std::numeric_limits<std::int16_t>::max();
    const Units& units = territory.Stationed;
    if (auto flaw =
            OutOfRange(name, {{units.Tanks, "Tanks", 0, Highest}, {units.Troops, "Troops", 0, Highest}})) {
        return flaw;
    }
    const void* const present = territory.HasDefense   ? static_cast<const void*>(&territory.HasDefense)
                                : territory.HasFactory ? static_cast<const void*>(&territory.HasFactory)
                                : units.Tanks != 0     ? static_cast<const void*>(&units.Tanks)
                                : units.Troops != 0    ? static_cast<const void*>(&units.Troops)
                                                       : nullptr;
    if (!territory.Occupied && present != nullptr) {
        return Flaw{std::string(name) + " belongs to nobody, so nothing can stand in it.", present};
    }
    return std::nullopt;
}

MaybeFlaw FlawOfTerritory(const GameState& game, int t) {
    const std::string_view name = World[static_cast<std::size_t>(t)].Name;
    auto flaw = FlawOfOwnership(game, t, name);
    return flaw ? flaw : FlawOfContents(game.TerritoryAt(t), name);
}

MaybeFlaw FlawOfPlayer(const Player& player, const std::string& who) {
    const bool ownsNothing = std::find(player.Owns.begin(), player.Owns.end(), true) == player.Owns.end();
    if (player.IsDead != ownsNothing) {
        return Flaw{who + (ownsNothing ? " owns no territory and must be dead."
                                       : " owns territories and must be alive."),
                    &player.IsDead};
    }
    return OutOfRange(who, {{player.EconomyLevel, "EconomyLevel", 0, MaxLevel},
                            {player.NuclearLevel, "NuclearLevel", 0, MaxLevel},
                            {player.WarfareLevel, "WarfareLevel", 0, MaxLevel}});
}

}  // namespace

std::optional<Flaw> FirstFlaw(const GameState& game, AtTurn atTurn) {
    MaybeFlaw flaw = OutOfRange("the game", {{game.NumPlayers, "NumPlayers", MinPlayers, MaxPlayers},
                                             {game.CurrentPlayer, "CurrentPlayer", 0, game.NumPlayers - 1}});
    for (int t = 0; t < NumTerritories && !flaw; ++t) {
        flaw = FlawOfTerritory(game, t);
    }
    int dead = 0;
    for (int p = 0; p < game.NumPlayers && !flaw; ++p) {
        flaw = FlawOfPlayer(game.PlayerAt(p), PlayerWords(p));
        dead += game.PlayerAt(p).IsDead ? 1 : 0;
    }
    if (!flaw && atTurn == AtTurn::LivingHuman && (game.Current().IsDead || game.Current().IsComputer)) {
        flaw = Flaw{"CurrentPlayer of the game must be a living human player.", &game.CurrentPlayer};
    }
    if (!flaw && game.DeadPlayers != dead) {
        flaw = Flaw{"DeadPlayers of the game must be " + std::to_string(dead) + ".", &game.DeadPlayers};
    }
    return flaw;
}

std::string RangeWords(int low, int high) {
    return "a whole number from " + std::to_string(low) + " to " + std::to_string(high);
}

}  // namespace vorlund
