// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "state/game_state.h"
#include "state/player_words.h"
#include "state/world.h"

namespace vorlund {

// The lines of a saved game in their order, for the writer and the reader. A visitor is called for each value
// with its name, its owner in texts and its range; it returns false to stop.

inline constexpr std::int16_t LowestInt16 = std::numeric_limits<std::int16_t>::min();
inline constexpr std::int16_t HighestInt16 = std::numeric_limits<std::int16_t>::max();

/// Totals have the full range: a computer player's may be negative.
template <typename PlayerType, typename Visitor>
bool VisitPlayer(PlayerType& player, const std::string& whose, Visitor& visitor) {
    return visitor.Integer(player.AttacksLeft, "AttacksLeft", whose, 0, 2) &&
           visitor.Boolean(player.IsDead, "IsDead", whose) &&
           visitor.Integer(player.DebtTurns, "DebtTurns", whose, 0, HighestInt16) &&
           visitor.Integer(player.EconomyLevel, "EconomyLevel", whose, 0, MaxLevel) &&
           visitor.Integer(player.Factories, "Factories", whose, LowestInt16, HighestInt16) &&
           visitor.Boolean(player.FirstTurn, "FirstTurn", whose) &&
           visitor.Integer(player.Money, "Money", whose, LowestInt16, HighestInt16) &&
           visitor.Integer(player.MovesLeft, "MovesLeft", whose, 0, 2) &&
           visitor.Name(player.Name, "Name", whose) &&
           visitor.Integer(player.NuclearLevel, "NuclearLevel", whose, 0, MaxLevel) &&
           visitor.Boolean(player.HasNuke, "HasNuke", whose) &&
           visitor.Integer(player.Oil, "Oil", whose, LowestInt16, HighestInt16) &&
           visitor.Integer(player.Total.Tanks, "Tanks", whose, LowestInt16, HighestInt16) &&
           visitor.Integer(player.Total.Troops, "Troops", whose, LowestInt16, HighestInt16) &&
           visitor.Integer(player.WarfareLevel, "WarfareLevel", whose, 0, MaxLevel) &&
           visitor.Boolean(player.IsComputer, "IsComputer", whose);
}

template <typename TerritoryType, typename Visitor>
bool VisitTerritory(TerritoryType& territory, const std::string& whose, Visitor& visitor) {
    return visitor.Boolean(territory.HasDefense, "HasDefense", whose) &&
           visitor.Boolean(territory.HasFactory, "HasFactory", whose) &&
           visitor.Boolean(territory.Occupied, "Occupied", whose) &&
           visitor.Integer(territory.Owner, "Owner", whose, 0, NoOwner) &&
           visitor.Integer(territory.Stationed.Tanks, "Tanks", whose, 0, HighestInt16) &&
           visitor.Integer(territory.Stationed.Troops, "Troops", whose, 0, HighestInt16);
}

/// Calls `visitor` for every value of `game`, in file order. False when the visitor stopped.
template <typename Game, typename Visitor>
bool VisitGame(Game& game, Visitor& visitor) {
    if (!visitor.Integer(game.NumPlayers, "NumPlayers", "the game", MinPlayers, MaxPlayers)) {
        return false;
    }
    for (int p = 0; p < game.NumPlayers; ++p) {
        const std::string whose = PlayerWords(p);
        if (!VisitPlayer(game.PlayerAt(p), whose, visitor)) {
            return false;
        }
        for (std::size_t t = 0; t < NumTerritories; ++t) {
            if (!visitor.Boolean(game.PlayerAt(p).Owns[t], "Owns", whose)) {
                return false;
            }
        }
    }
    for (std::size_t t = 0; t < NumTerritories; ++t) {
        if (!VisitTerritory(game.Territories[t], std::string(World[t].Name), visitor)) {
            return false;
        }
    }
    const auto last = static_cast<std::int16_t>(game.NumPlayers - 1);
    return visitor.Integer(game.CurrentPlayer, "CurrentPlayer", "the game", 0, last) &&
           visitor.Integer(game.DeadPlayers, "DeadPlayers", "the game", 0, last);
}

}  // namespace vorlund
