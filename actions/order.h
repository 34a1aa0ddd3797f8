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

/// What is typed into the fields of a move or an attack. The territories are numbers 1 to 42; an empty count
/// of units is 0.
struct OrderEntries {
    std::string From;
    std::string To;
    std::string Troops;
    std::string Tanks;
};

/// A force on its way from a territory of the current player to a neighbour.
struct Order {
    int From = 0;  ///< territory index
    int To = 0;
    Units Force;  ///< none of it negative
};

/// What tells moves from attacks.
struct OrderTerms {
    bool IsAttack;
    bool RoundsTanks;      ///< tanks are rounded before anything is checked, not cut down like troops
    const char* NoFrom;    ///< why entries are refused: the first territory is missing
    const char* NoTo;      ///< the second one is
    const char* Invalid;   ///< an entry is no number, or the map does not allow the way
    const char* MoreThan;  ///< more units of a kind than stand there; "troops than you have." follows
    const char* Negative;  ///< fewer than none; "troops." follows
};

/// From where the current player could send something: own territories with units and a destination.
TerritorySet Sources(const GameState& game, const OrderTerms& terms);

/// Where it could go from the territory that is entered as `from`, or, if that is none of the Sources, from
/// any of them.
TerritorySet Destinations(const GameState& game, const OrderTerms& terms, std::string_view from);

/// The most troops or tanks that could be sent, "10 troops in 7", as far as one of the Sources is entered.
/// The room at the destination counts if a possible one is entered.
Most MostToSend(const GameState& game, const OrderTerms& terms, const OrderEntries& entries, Goods goods);

/// The order that `entries` give, if the map allows it, the territory holds the force and, for a move, there
/// is room for it, or why there is none. Whether there is anything to send is asked before fractions are cut
/// off, so half a troop is an order.
std::variant<Refusal, Order> ReadOrder(const GameState& game, const OrderTerms& terms,
                                       const OrderEntries& entries);

}  // namespace vorlund
