#pragma once

#include <QPainterPath>
#include <QPointF>
#include <array>
#include <optional>

#include "state/game_state.h"

namespace vorlund {

/// The shapes of the territories on the board's map, for the pointer.
class TerritoryMap {
public:
    /// Reads the outlines that the map was drawn from.
    TerritoryMap();

    /// The index of the territory whose land lies under `place`, in pixels of the board; nothing for the sea.
    std::optional<int> At(QPointF place) const;

private:
    std::array<QPainterPath, NumTerritories> shapes_;
};

}  // namespace vorlund
