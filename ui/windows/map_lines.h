// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QString>
#include <vector>

namespace vorlund {

/// An outline or a border of the map, in pixels of the layout.
struct MapLine {
    std::vector<int> Territories;  ///< numbers, from 1, of the territories that it bounds
    QPolygonF Points;
};

/// Reads the map resource called `name`. Each of its lines holds `territories` territory numbers, the count
/// of points, and the points in tenths of a pixel. Reading stops at the first malformed number.
std::vector<MapLine> ReadMapLines(const QString& name, int territories);

}  // namespace vorlund
