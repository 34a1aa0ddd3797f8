// SPDX-License-Identifier: MIT
#include "ui/windows/territory_map.h"

#include "ui/windows/map_lines.h"

namespace vorlund {

using namespace Qt::StringLiterals;

TerritoryMap::TerritoryMap() {
    for (const MapLine& ring : ReadMapLines(u"outlines.txt"_s, 1)) {
        outlines_[static_cast<std::size_t>(ring.Territories[0] - 1)].addPolygon(ring.Points);
    }
    for (const MapLine& sign : ReadMapLines(u"signs.txt"_s, 1)) {
        signs_.push_back({sign.Territories[0] - 1, sign.Points.boundingRect()});
        covered_ |= signs_.back().Box.toAlignedRect();
    }
}

std::optional<int> TerritoryMap::At(QPointF place) const {
    for (const Sign& sign : signs_) {
        if (sign.Box.contains(place)) {
            return sign.Territory;
        }
    }
    for (std::size_t t = 0; t < outlines_.size(); ++t) {
        // The bounding box first: the outlines have hundreds of points.
        if (outlines_[t].controlPointRect().contains(place) && outlines_[t].contains(place)) {
            return static_cast<int>(t);
        }
    }
    return std::nullopt;
}

}  // namespace vorlund
