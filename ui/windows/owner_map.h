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

/// The land of the board's map in the colours of those who hold it, with the borders between them. The map's
/// picture lets through on land what lies under it; here that is painted and laid under the picture, once for
/// a scale and again only where an owner changes.
class OwnerMap {
public:
    /// A player's index for every territory, or Nobody.
    using Owners = std::array<int, NumTerritories>;
    static constexpr int Nobody = MaxPlayers;

    /// Both must outlive this.
    OwnerMap(const Picture& picture, const TerritoryMap& territories);

    /// Has the land shown with these owners from the next Paint on. Returns what of the board has changed.
    QRegion Show(const Owners& owners);

    /// Paints all land, and the sea around it, on a board whose upper left corner is the painter's origin and
    /// whose pixels are the painter's units, at whatever scale.
    void Paint(QPainter& painter);

private:
    /// A pixel that lies near a border, and how near, as a share of the furthest that matters.
    struct Beside {
        std::int16_t X;
        std::int16_t Y;
        std::uint8_t Distance;
    };

    struct Border {
        std::array<std::size_t, 2> Sides{};  // territory indices
        QPolygonF Line;                      // in pixels of the board
        QRect Box;                           // round all that lies beside it
        std::vector<Beside> Pixels;
    };

    QRect TouchedBy(std::size_t territory) const;
    QRect Pixels(const QRect& part) const;
    void Begin(qreal ratio);
    void Measure(Border& border) const;
    void MixColours();
    void Compose(const QRect& part);
    std::vector<std::uint8_t> FromFronts(const QRect& part, const QRect& pixels) const;
    void FillLand(const QRect& pixels, const std::vector<std::uint8_t>& distances);

    const Picture& picture_;
    const TerritoryMap& territories_;
    std::vector<Border> borders_;
    QSize size_;  // of the part of the board, from its upper left corner, that holds all land
    Owners owners_{};
    std::bitset<NumTerritories> stale_;
    qreal ratio_ = 0;  // device pixels to a pixel of the board
    QImage numbers_;   // of the territory at each device pixel, 0 at sea
    QImage composed_;  // that part as it is seen
    // Of an owner's land by its distance from a front
    std::array<std::array<QRgb, 256>, MaxPlayers + 1> colours_{};
};

}  // namespace vorlund
