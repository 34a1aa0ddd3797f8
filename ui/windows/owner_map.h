// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRect>
#include <QRegion>
#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

#include "state/game_state.h"
#include "ui/parts/picture.h"
#include "ui/windows/territory_map.h"

class QPainter;

namespace vorlund {

/// Paints the land of the map in the colours of its owners, with the borders between them. The map's picture
/// is translucent on land; this composes colours and picture into one cached image, completely when the scale
/// changes and otherwise only around territories whose owner has changed.
class OwnerMap {
public:
    /// A player's index for every territory, or Nobody.
    using Owners = std::array<int, NumTerritories>;
    static constexpr int Nobody = MaxPlayers;

    /// Both arguments must outlive the object.
    OwnerMap(const Picture& picture, const TerritoryMap& territories);

    /// Sets the owners that the next Paint shows. Returns the part of the board to repaint.
    QRegion Show(const Owners& owners);

    /// Paints the land and the sea around it. The painter's origin is the board's upper left corner, its unit
    /// one pixel of the layout; its device transform gives the scale.
    void Paint(QPainter& painter);

private:
    /// A device pixel near a border and its distance from that, where Far stands for EdgeEnd.
    struct BorderPixel {
        std::int16_t X;
        std::int16_t Y;
        std::uint8_t Distance;
    };

    struct Border {
        std::array<std::size_t, 2> Sides{};  ///< territory indices
        QPolygonF Line;                      ///< in pixels of the layout
        QRect Box;                           ///< bounds of the pixels near it
        std::vector<BorderPixel> Pixels;
    };

    QRect BoundsOf(std::size_t territory) const;
    void SetScale(qreal ratio);
    void MeasureDistances(Border& border) const;
    void FillColourTable();
    void Compose(const QRect& part);
    std::vector<std::uint8_t> DistancesFromFronts(const QRect& part, const QRect& pixels) const;
    void FillLand(const QRect& pixels, const std::vector<std::uint8_t>& distances);

    const Picture& picture_;
    const TerritoryMap& territories_;
    std::vector<Border> borders_;
    QSize size_;  ///< of the part of the board, from its upper left corner, that contains all land
    Owners owners_{};
    std::bitset<NumTerritories> stale_;
    qreal ratio_ = 0;          ///< device pixels per pixel of the layout
    QImage territoryNumbers_;  ///< the territory's number at each device pixel, 0 at sea
    QImage composed_;          ///< the cached image
    /// Land colours by owner and distance from a front
    std::array<std::array<QRgb, 256>, MaxPlayers + 1> colours_{};
};

}  // namespace vorlund
