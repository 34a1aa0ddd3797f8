// SPDX-License-Identifier: MIT
#include "ui/windows/owner_map.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "ui/windows/distance_field.h"
#include "ui/windows/map_lines.h"
#include "ui/windows/owner_colours.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

// A front is a border between two owners. Distances from it, in pixels of the layout, at which its dark line
// ends, and at which the lighter edge of the land begins to fade and ends.
constexpr qreal LineEnd = 1.1;
constexpr qreal EdgeFades = 2.2;
constexpr qreal EdgeEnd = 4.5;
constexpr qreal EdgeStrength = 0.8;
constexpr QRgb LineColour = qRgb(10, 14, 20);
constexpr QRgb SeaColour = qRgb(20, 30, 40);
constexpr int Far = DistanceField::Far;  ///< stands for a distance of EdgeEnd or more

constexpr int FullRepaintThreshold = 6;  ///< composing that many territories one by one takes longer than all

/// Blends two colours: `share` of `one`, the rest of `other`.
QRgb Blend(QRgb one, QRgb other, qreal share) {
    const auto part = [&](int (*of)(QRgb)) {
        return static_cast<int>(std::lround(of(one) * share + of(other) * (1 - share)));
    };
    return qRgb(part(qRed), part(qGreen), part(qBlue));
}

/// `rect` grown by the reach of a front's edge.
QRect GrownByEdge(const QRectF& rect) {
    return rect.adjusted(-EdgeEnd, -EdgeEnd, EdgeEnd, EdgeEnd).toAlignedRect();
}

}  // namespace

OwnerMap::OwnerMap(const Picture& picture, const TerritoryMap& territories)
    : picture_(picture), territories_(territories) {
    for (const MapLine& line : ReadMapLines(u"borders.txt"_s, 2)) {
        Border border;
        std::transform(line.Territories.begin(), line.Territories.end(), border.Sides.begin(),
                       [](int number) { return static_cast<std::size_t>(number - 1); });
        border.Line = line.Points;
        border.Box = GrownByEdge(line.Points.boundingRect());
        borders_.push_back(std::move(border));
    }
    owners_.fill(Nobody);
    QRect land;
    for (std::size_t t = 0; t < owners_.size(); ++t) {
        land |= BoundsOf(t);
    }
    size_ = QSize(land.right() + 1, land.bottom() + 1);
}

QRect OwnerMap::BoundsOf(std::size_t territory) const {
    return GrownByEdge(territories_.Outline(static_cast<int>(territory)).controlPointRect());
}

QRegion OwnerMap::Show(const Owners& owners) {
    QRegion changed;
    for (std::size_t t = 0; t < owners.size(); ++t) {
        if (owners[t] != owners_[t]) {
            stale_.set(t);
            changed |= BoundsOf(t);
        }
    }
    owners_ = owners;
    return changed;
}

void OwnerMap::Paint(QPainter& painter) {
    const qreal ratio = painter.deviceTransform().m11();
    if (ratio_ != ratio) {
        SetScale(ratio);
        Compose(QRect(QPoint(), size_));
    } else if (stale_.count() >= FullRepaintThreshold) {
        Compose(QRect(QPoint(), size_));
    } else {
        for (std::size_t t = 0; t < owners_.size(); ++t) {
            if (stale_.test(t)) {
                Compose(BoundsOf(t));
            }
        }
    }
    stale_.reset();
    painter.drawImage(0, 0, composed_);
}

void OwnerMap::SetScale(qreal ratio) {
    ratio_ = ratio;
    const QSize size = DevicePixels(QRect(QPoint(), size_), ratio_).size();
    composed_ = QImage(size, QImage::Format_RGB32);
    composed_.setDevicePixelRatio(ratio);
    territoryNumbers_ = QImage(size, QImage::Format_Grayscale8);
    territoryNumbers_.fill(0);
    QPainter painter(&territoryNumbers_);
    painter.scale(ratio, ratio);
    for (int t = 0; t < NumTerritories; ++t) {
        const int number = t + 1;
        painter.fillPath(territories_.Outline(t), QColor(number, number, number));
    }
    std::for_each(borders_.begin(), borders_.end(), [this](Border& border) { MeasureDistances(border); });
    FillColourTable();
}

void OwnerMap::MeasureDistances(Border& border) const {
    const QRect all = DevicePixels(border.Box, ratio_).intersected(composed_.rect());
    DistanceField field(all, ratio_, EdgeEnd);
    field.Add(border.Line);
    border.Pixels.clear();
    for (int y = all.top(); y <= all.bottom(); ++y) {
        for (int x = all.left(); x <= all.right(); ++x) {
            if (const int distance = field.At(x, y); distance < Far) {
                border.Pixels.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                                         static_cast<std::uint8_t>(distance)});
            }
        }
    }
    border.Pixels.shrink_to_fit();
}

void OwnerMap::FillColourTable() {
    for (std::size_t owner = 0; owner < colours_.size(); ++owner) {
        for (std::size_t distance = 0; distance <= Far; ++distance) {
            const qreal away = static_cast<qreal>(distance) * EdgeEnd / Far;
            const qreal edge = std::clamp((EdgeEnd - away) / (EdgeEnd - EdgeFades), 0.0, 1.0);
            const qreal line = std::clamp((LineEnd - away) * ratio_ + 0.5, 0.0, 1.0);
            const QRgb land =
                Blend(OwnersColours[owner].Edge, OwnersColours[owner].Land, edge * EdgeStrength);
            colours_[owner][distance] = Blend(LineColour, land, line);
        }
    }
}

void OwnerMap::Compose(const QRect& part) {
    const QRect pixels = DevicePixels(part, ratio_).intersected(composed_.rect());
    FillLand(pixels, DistancesFromFronts(part, pixels));
    // The same memory without a device pixel ratio, so that coordinates are device pixels
    QImage canvas(composed_.bits(), composed_.width(), composed_.height(), composed_.bytesPerLine(),
                  composed_.format());
    QPainter(&canvas).drawPixmap(pixels, picture_.At(ratio_ / Zoom::OfApplication().Factor()), pixels);
}

/// For every pixel of `pixels`, row by row, its distance from the nearest front.
std::vector<std::uint8_t> OwnerMap::DistancesFromFronts(const QRect& part, const QRect& pixels) const {
    std::vector<std::uint8_t> distances(static_cast<std::size_t>(pixels.width() * pixels.height()), Far);
    for (const Border& border : borders_) {
        if (owners_[border.Sides[0]] == owners_[border.Sides[1]] || !border.Box.intersects(part)) {
            continue;
        }
        for (const BorderPixel& beside : border.Pixels) {
            if (pixels.contains(beside.X, beside.Y)) {
                const int place = (beside.Y - pixels.top()) * pixels.width() + beside.X - pixels.left();
                std::uint8_t& distance = distances[static_cast<std::size_t>(place)];
                distance = std::min(distance, beside.Distance);
            }
        }
    }
    return distances;
}

void OwnerMap::FillLand(const QRect& pixels, const std::vector<std::uint8_t>& distances) {
    std::vector<QRgb> row(static_cast<std::size_t>(pixels.width()));
    auto distance = distances.begin();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const uchar* number = territoryNumbers_.constScanLine(y) + pixels.left();
        for (QRgb& pixel : row) {
            if (*number == 0) {
                pixel = SeaColour;
            } else {
                const auto owner = static_cast<std::size_t>(owners_[*number - 1U]);
                pixel = colours_[owner][*distance];
            }
            ++number;
            ++distance;
        }
        std::memcpy(composed_.scanLine(y) + static_cast<std::size_t>(pixels.left()) * sizeof(QRgb),
                    row.data(), row.size() * sizeof(QRgb));
    }
}

}  // namespace vorlund
