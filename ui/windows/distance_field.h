// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QRect>
#include <vector>

namespace vorlund {

/// The device pixels that `part` of the layout touches, at `ratio` device pixels per pixel of the layout.
QRect DevicePixels(const QRect& part, qreal ratio);

/// How far each device pixel of a rectangle is from the nearest of some lines, as far as `reach`.
class DistanceField {
public:
    static constexpr int Far = 255;  ///< stands for a distance of `reach` or more

    /// `reach` and the lines are in pixels of the layout.
    DistanceField(const QRect& pixels, qreal ratio, qreal reach);

    void Add(const QPolygonF& line);

    /// The distance as a share of `reach`, 0 to Far.
    int At(int x, int y) const;

private:
    std::size_t Index(int x, int y) const;

    QRect pixels_;
    qreal ratio_;
    qreal reach_;
    std::vector<qreal> squares_;  ///< of the distances, in rows
};

}  // namespace vorlund
