// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>

#include "state/game_state.h"

namespace vorlund {

/// A set of territories, by index.
using TerritorySet = std::bitset<NumTerritories>;

/// The territories for whose index `holds` is true.
template <class Predicate>
TerritorySet TerritoriesWhere(Predicate holds) {
    TerritorySet found;
    for (int t = 0; t < NumTerritories; ++t) {
        found[static_cast<std::size_t>(t)] = holds(t);
    }
    return found;
}

/// True when territory index `territory` is in `set`.
inline bool Has(const TerritorySet& set, int territory) {
    return set[static_cast<std::size_t>(territory)];
}

}  // namespace vorlund
