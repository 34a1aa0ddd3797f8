#pragma once

#include <string>

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

// What a player of random temper types into the fields. Most of it makes sense, some is
// no number or hard to bear.

/// A territory's number: mostly one of the current player's.
std::string TerritoryEntry(const GameState& game, Random& hands);

/// Troops, tanks or barrels: mostly between nothing and `limit`, often just that.
std::string QuantityEntry(int limit, Random& hands);

/// Two territories as the current player might name them: mostly an own one with units and a neighbour of it.
struct RouteEntries {
    std::string From;
    std::string To;
    int Troops = 0;  ///< what stands at `From`, for the quantities
    int Tanks = 0;
};
RouteEntries RandomRoute(const GameState& game, Random& hands);

}  // namespace vorlund
