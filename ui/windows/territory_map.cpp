// SPDX-License-Identifier: MIT
#include "ui/windows/territory_map.h"

#include "ui/windows/map_lines.h"

namespace vorlund {

using namespace Qt::StringLiterals;

TerritoryMap::TerritoryMap() {
    for (const MapLine& ring : ReadMapLines(u"outlines.txt"_s, 1)) {
        outlines_[static_cast<std::size_t>(ring.Territories[0] - 1)].addPolygon(ring.Points);
    }
}

std::optional<int> TerritoryMap::At(QPointF place) const {
    for (std::size_t t = 0; t < outlines_.size(); ++t) {
        // The bounding box first: the outlines have hundreds of points.
        if (outlines_[t].controlPointRect().contains(place) && outlines_[t].contains(place)) {
            return static_cast<int>(t);
        }
    }
    return std::nullopt;
}

}  // namespace vorlund
