// SPDX-License-Identifier: MIT
#include "state/changes.h"

namespace vorlund {

MapChanges ChangesBetween(const GameState& before, const GameState& after) {
    MapChanges changes;
    changes.Conquered =
        TerritoriesWhere([&](int t) { return before.TerritoryAt(t).Owner != after.TerritoryAt(t).Owner; });
    changes.Changed = TerritoriesWhere([&](int t) { return before.TerritoryAt(t) != after.TerritoryAt(t); }) &
                      ~changes.Conquered;
    return changes;
}

}  // namespace vorlund
