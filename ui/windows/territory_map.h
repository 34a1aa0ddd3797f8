// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <array>
#include <optional>

#include "state/game_state.h"

namespace vorlund {

/// The outlines of the territories, in pixels of the layout, and the hit test on them.
class TerritoryMap {
public:
    /// Reads the outlines, from which the map's picture was drawn too.
    TerritoryMap();

    /// The index of the territory at `place`; nothing at sea.
    std::optional<int> At(QPointF place) const;

    /// The land of territory index `territory` as closed rings, one for each island.
    const QPainterPath& Outline(int territory) const {
        return outlines_[static_cast<std::size_t>(territory)];
    }

private:
    std::array<QPainterPath, NumTerritories> outlines_;
};

}  // namespace vorlund
