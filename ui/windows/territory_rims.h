// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRegion>
#include <array>
#include <map>
#include <utility>

#include "state/territory_set.h"
#include "ui/windows/territory_map.h"

class QPainter;

namespace vorlund {

/// Why a territory has a rim. Of two rims round one territory the later in this list lies above.
enum class Rim {
    Lit,        ///< the window in front could mean it
    Changed,    ///< its forces or buildings have just changed
    Conquered,  ///< it has just changed hands
    Pointed     ///< it is under the pointer, and a click would mean it
};

/// Rims along the inside of territories' outlines, which are laid over the land of the board's map but not
/// over its numbers. A rim is a bright line within a dark one, so that it can be seen on light land and on
/// dark.
class TerritoryRims {
public:
    /// `map` must outlive this.
    explicit TerritoryRims(const TerritoryMap& map) : map_(map) {}

    /// Has these territories and no others bear the rim from the next Paint on. Returns what of the board, in
    /// pixels of the layout, has to be painted anew.
    QRegion Show(Rim rim, const TerritorySet& territories);

    /// Paints the rims that reach into `part` of a board whose upper left corner is the painter's origin and
    /// whose pixels are the painter's units, at whatever scale. The painter's clip is left as it was.
    void Paint(QPainter& painter, const QRegion& part);

private:
    static constexpr std::size_t NumRims = 4;

    QRect BoundsOf(int territory) const;
    QImage Draw(Rim rim, int territory) const;

    const TerritoryMap& map_;
    std::array<TerritorySet, NumRims> shown_;
    qreal ratio_ = 0;                               ///< device pixels per pixel of the layout
    std::map<std::pair<Rim, int>, QImage> images_;  ///< of those shown that have been painted
};

}  // namespace vorlund
