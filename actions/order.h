// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "actions/most.h"
#include "actions/outcome.h"
#include "state/game_state.h"
#include "state/territory_set.h"

namespace vorlund {

/// The texts of the fields of a move or an attack. Territories are numbers from 1 to 42; an empty number of
/// units means 0.
struct OrderEntries {
    std::string From;
    std::string To;
    std::string Troops;
    std::string Tanks;
};

/// A force to be sent from a territory of the current player to a neighbour.
struct Order {
    int From = 0;  ///< territory index
    int To = 0;
    Units Force;  ///< none of it negative
};

/// The differences between moves and attacks, and the texts of their refusals.
struct OrderTerms {
    bool IsAttack;
    bool RoundsTanks;      ///< tanks are rounded before any check, and not rounded down like troops
    const char* NoFrom;    ///< the first territory is missing
    const char* NoTo;      ///< the second territory is missing
    const char* Invalid;   ///< an entry is no number, or CanReach is false
    const char* MoreThan;  ///< more units of a kind than are stationed; "troops than you have." is appended
    const char* Negative;  ///< a negative number of units; "troops." is appended
};

/// The territories from which the current player could send units: own ones with units and a destination.
TerritorySet Sources(const GameState& game, const OrderTerms& terms);

/// The possible destinations from the territory that is entered as `from` or, if that is not an own one, from
/// any of the Sources.
TerritorySet Destinations(const GameState& game, const OrderTerms& terms, std::string_view from);

/// The most troops or tanks that could be sent, "10 troops in 7", if an own territory is entered. The room at
/// the destination limits it if a possible one is entered.
Most MostToSend(const GameState& game, const OrderTerms& terms, const OrderEntries& entries, Goods goods);

/// The order that `entries` describe, or a refusal when CanReach is false, the territory does not hold the
/// force or, for a move, the destination has no room for it. Whether the force is empty is checked before
/// fractions are cut off, so half a troop is an order.
std::variant<Refusal, Order> ReadOrder(const GameState& game, const OrderTerms& terms,
                                       const OrderEntries& entries);

}  // namespace vorlund
