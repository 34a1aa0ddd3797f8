// SPDX-License-Identifier: MIT
#include "ui/windows/map_walk.h"

#include <QPoint>
#include <cstdlib>

#include "state/world.h"

namespace vorlund {
namespace {

constexpr int MapWidth = 750;  ///< pixels of the layout

QPoint StepOf(int arrow) {
    switch (arrow) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

QPoint Way(const WorldEntry& from, const WorldEntry& to) {
    QPoint way(to.MapX - from.MapX, to.MapY - from.MapY);
    if (std::abs(way.x()) > MapWidth / 2) {
        way.rx() += way.x() > 0 ? -MapWidth : MapWidth;
    }
    return way;
}

}  // namespace

std::optional<int> NeighbourTowards(int from, int arrow) {
    const QPoint step = StepOf(arrow);
    const WorldEntry& here = World[static_cast<std::size_t>(from)];
    std::optional<int> best;
    QPoint bestWay;
    for (const std::int16_t n : here.Neighbours) {
        if (n == NoNeighbour) {
            continue;
        }
        const QPoint way = Way(here, World[static_cast<std::size_t>(n)]);
        // Each way as its parts along the direction and across it: the ratio is the tangent of the angle
        // between.
        const auto along = [&](QPoint p) { return QPoint::dotProduct(p, step); };
        const auto across = [&](QPoint p) { return std::abs(QPoint::dotProduct(p, step.transposed())); };
        if (along(way) > 0 && (!best || across(way) * along(bestWay) < across(bestWay) * along(way))) {
            best = n;
            bestWay = way;
        }
    }
    return best;
}

}  // namespace vorlund
