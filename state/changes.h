// SPDX-License-Identifier: MIT
#pragma once

#include "state/territory_set.h"

namespace vorlund {

/// How the territories of two states of a game differ. No territory is in both sets.
struct MapChanges {
    TerritorySet Conquered;  ///< another owner, or none any more
    TerritorySet Changed;    ///< the same owner with other forces or buildings

    bool operator==(const MapChanges&) const = default;
};

MapChanges ChangesBetween(const GameState& before, const GameState& after);

}  // namespace vorlund
