// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "actions/outcome.h"
#include "state/game_state.h"
#include "state/territory_set.h"
#include "turn/commands.h"

namespace vorlund {

/// The three upgrades, each with levels 0 to 3.
enum class Track { Economy, Warfare, Nuclear };

/// Something was bought. `Message` says what; it ends with a carriage return, because the dialog shows
/// MoneyLine below it.
struct Purchase {
    std::string Message;

    bool operator==(const Purchase&) const = default;
};

/// The current player's state on a track in two lines: the level, and the price of the next one or "max".
std::string StatusOf(const GameState& game, Track track);

/// Why the track's upgrade command is not available: the current player has the highest level.
WhyNot WhyNoUpgrade(const GameState& game, Track track);

/// Raises the current player by a level for its price; refused when the money does not suffice, nothing at
/// level 3.
std::variant<Nothing, Refusal, Purchase> RaiseLevel(GameState& game, Track track);

// The territories in which the current player can build: own ones without such a building.
TerritorySet FactorySites(const GameState& game);
TerritorySet DefenseSites(const GameState& game);

/// Builds a factory in the current player's territory whose number is typed in `territory`; the number is
/// rounded, halves to even. Refused when that is no territory number, when the territory is not the player's
/// or already has a factory, or when the money does not suffice.
std::variant<Refusal, Purchase> Fact(GameState& game, std::string_view territory);

/// Builds a defense, like Fact.
std::variant<Refusal, Purchase> Def(GameState& game, std::string_view territory);

}  // namespace vorlund
