// SPDX-License-Identifier: MIT
#include "ui/windows/territory_map.h"

#include "ui/windows/map_lines.h"

namespace vorlund {

TerritoryMap::TerritoryMap() {
    for (const MapLine& ring : ReadMapLines(QStringLiteral("outlines.txt"), 1)) {
        outlines_[static_cast<std::size_t>(ring.Territories[0] - 1)].addPolygon(ring.Points);
    }
}

std::optional<int> TerritoryMap::At(QPointF place) const {
    for (std::size_t t = 0; t < outlines_.size(); ++t) {
        // Asked of the box first: the outlines have hundreds of points.
        if (outlines_[t].controlPointRect().contains(place) && outlines_[t].contains(place)) {
            return static_cast<int>(t);
        }
    }
    return std::nullopt;
}

}  // namespace vorlund
