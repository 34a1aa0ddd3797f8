// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QRegion>
#include <array>
#include <optional>
#include <vector>

#include "state/game_state.h"

namespace vorlund {

/// The map as it is printed, in pixels of the layout: the outlines of the territories and their numbers and
/// derricks, some of which stand on a neighbour's land or at sea.
class TerritoryMap {
public:
    /// Reads the data from which the map's picture was drawn.
    TerritoryMap();

    /// The index of the territory whose number, derrick or else land is at `place`; nothing at sea.
    std::optional<int> At(QPointF place) const;

    /// The land of territory index `territory` as closed rings, one for each island.
    const QPainterPath& Outline(int territory) const {
        return outlines_[static_cast<std::size_t>(territory)];
    }

    /// What the numbers and derricks cover.
    const QRegion& Signs() const { return covered_; }

private:
    struct Sign {
        int Territory = 0;  ///< index
        QRectF Box;
    };

    std::array<QPainterPath, NumTerritories> outlines_;
    std::vector<Sign> signs_;
    QRegion covered_;
};

}  // namespace vorlund
