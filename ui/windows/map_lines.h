// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QString>
#include <vector>

namespace vorlund {

/// A ring or a line of the board's map, in pixels of the board.
struct MapLine {
    std::vector<int> Territories;  ///< the numbers, from 1, of those that it bounds
    QPolygonF Points;
};

/// Reads the map's data called `name`: a line each of `territories` numbers, how many points, and the points
/// in tenths of a pixel. What cannot be read ends the list.
std::vector<MapLine> ReadMapLines(const QString& name, int territories);

}  // namespace vorlund
