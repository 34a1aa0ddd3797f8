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

/// Something was paid for. `Message` says what, and ends with a carriage return: the money line of buy.h
/// follows it.
struct Purchase {
    std::string Message;

    bool operator==(const Purchase&) const = default;
};

/// Where the current player stands on a track, in two lines: the level, and the price of the next one or
/// "max".
std::string StatusOf(const GameState& game, Track track);

/// Why the track's upgrade command is not enabled for the current player: there is no higher level.
WhyNot WhyNoUpgrade(const GameState& game, Track track);

/// Raises the current player by a level for that level's price; refused when the money is short, nothing at
/// level 3.
std::variant<Nothing, Refusal, Purchase> RaiseLevel(GameState& game, Track track);

// Where the current player can build: in own territories without such a building.
TerritorySet FactorySites(const GameState& game);
TerritorySet DefenseSites(const GameState& game);

/// Builds a factory in the current player's territory whose number `territory` holds, as typed; the
/// number is rounded, halves to the even neighbour. Refused when that is no territory number, when the
/// territory is not the player's or has a factory, or when the money is short.
std::variant<Refusal, Purchase> Fact(GameState& game, std::string_view territory);

/// Builds a defense, like Fact.
std::variant<Refusal, Purchase> Def(GameState& game, std::string_view territory);

}  // namespace vorlund
