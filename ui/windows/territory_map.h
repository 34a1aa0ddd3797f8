// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <array>
#include <optional>

#include "state/game_state.h"

namespace vorlund {

/// The shapes of the territories on the board's map, in pixels of the board.
class TerritoryMap {
public:
    /// Reads the outlines that the map was drawn from.
    TerritoryMap();

    /// The index of the territory whose land lies under `place`; nothing for the sea.
    std::optional<int> At(QPointF place) const;

    /// The land of territory index `territory`: closed rings of its coasts, islands and borders.
    const QPainterPath& Outline(int territory) const {
        return outlines_[static_cast<std::size_t>(territory)];
    }

private:
    std::array<QPainterPath, NumTerritories> outlines_;
};

}  // namespace vorlund
