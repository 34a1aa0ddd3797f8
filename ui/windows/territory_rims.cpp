// SPDX-License-Identifier: MIT
#include "ui/windows/territory_rims.h"

#include <QPainter>
#include <algorithm>
#include <cstring>
#include <vector>

#include "ui/windows/distance_field.h"

namespace vorlund {
namespace {

// From the outline inwards, in pixels of the layout: a part of the map's border stays dark, also between two
// rims; then comes the bright line, and a dark one within it.
constexpr qreal BorderEnd = 0.45;
constexpr qreal CasingWidth = 1.2;
constexpr QRgb CasingColour = qRgb(8, 14, 26);
constexpr int CasingAlpha = 170;

struct RimLook {
    QRgb Colour;
    qreal LineEnd;
    int WashAlpha;  ///< of white over the land within
};

// In the order of Rim
constexpr std::array<RimLook, 4> Looks{{{qRgb(255, 252, 232), 1.6, 30},
                                        {qRgb(130, 235, 255), 1.6, 0},
                                        {qRgb(90, 225, 255), 3.0, 0},
                                        {qRgb(255, 255, 255), 2.8, 60}}};

QRgb WithAlpha(QRgb colour, qreal alpha) {
    return qRgba(qRed(colour), qGreen(colour), qBlue(colour), static_cast<int>(alpha));
}

/// The colours of a rim by their distance from the outline, as DistanceField counts it up to `reach`.
std::array<QRgb, DistanceField::Far + 1> ColoursOf(const RimLook& look, qreal reach, qreal ratio) {
    QImage colours(DistanceField::Far + 1, 1, QImage::Format_ARGB32_Premultiplied);
    colours.fill(QColor(255, 255, 255, look.WashAlpha));
    QPainter painter(&colours);
    for (int distance = 0; distance < DistanceField::Far; ++distance) {
        const qreal away = distance * reach / DistanceField::Far;
        const auto lay = [&](QRgb colour, int alpha, qreal end) {
            const qreal share = std::clamp((end - away) * ratio + 0.5, 0.0, 1.0);
            painter.fillRect(distance, 0, 1, 1, QColor::fromRgba(WithAlpha(colour, alpha * share)));
        };
        lay(CasingColour, CasingAlpha, look.LineEnd + CasingWidth);
        lay(look.Colour, 255, look.LineEnd);
        lay(CasingColour, CasingAlpha, BorderEnd);
    }
    painter.end();
    std::array<QRgb, DistanceField::Far + 1> table{};
    std::memcpy(table.data(), colours.constScanLine(0), table.size() * sizeof(QRgb));
    return table;
}

}  // namespace

QRegion TerritoryRims::Show(Rim rim, const TerritorySet& territories) {
    TerritorySet& shown = shown_[static_cast<std::size_t>(rim)];
    const TerritorySet changed = shown ^ territories;
    shown = territories;
    QRegion region;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Has(changed, t)) {
            region |= BoundsOf(t);
            images_.erase({rim, t});
        }
    }
    return region;
}

QRect TerritoryRims::BoundsOf(int territory) const {
    return map_.Outline(territory).controlPointRect().toAlignedRect().adjusted(-1, -1, 1, 1);
}

void TerritoryRims::Paint(QPainter& painter, const QRegion& part) {
    if (const qreal ratio = painter.deviceTransform().m11(); ratio_ != ratio) {
        ratio_ = ratio;
        images_.clear();
    }
    painter.save();
    painter.setClipRegion(part - map_.Signs(), painter.hasClipping() ? Qt::IntersectClip : Qt::ReplaceClip);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        for (int t = 0; t < NumTerritories; ++t) {
            if (!Has(shown_[i], t) || !part.intersects(BoundsOf(t))) {
                continue;
            }
            const auto rim = static_cast<Rim>(i);
            const auto [image, isNew] = images_.try_emplace({rim, t});
            if (isNew) {
                image->second = Draw(rim, t);
            }
            painter.drawImage(QPointF(DevicePixels(BoundsOf(t), ratio_).topLeft()) / ratio_, image->second);
        }
    }
    painter.restore();
}

QImage TerritoryRims::Draw(Rim rim, int territory) const {
    const QPainterPath& outline = map_.Outline(territory);
    const QRect pixels = DevicePixels(BoundsOf(territory), ratio_);
    const RimLook& look = Looks[static_cast<std::size_t>(rim)];
    const qreal reach = look.LineEnd + CasingWidth + 1;
    const auto colours = ColoursOf(look, reach, ratio_);
    DistanceField field(pixels, ratio_, reach);
    for (const QPolygonF& ring : outline.toSubpathPolygons()) {
        field.Add(ring);
    }
    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    std::vector<QRgb> row;
    for (int y = 0; y < pixels.height(); ++y) {
        row.clear();
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            row.push_back(colours[static_cast<std::size_t>(field.At(x, pixels.top() + y))]);
        }
        std::memcpy(image.scanLine(y), row.data(), row.size() * sizeof(QRgb));
    }
    QImage land(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    land.fill(0);
    QPainter painter(&land);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-pixels.topLeft());
    painter.scale(ratio_, ratio_);
    painter.fillPath(outline, Qt::white);
    painter.end();
    QPainter cut(&image);
    cut.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    cut.drawImage(0, 0, land);
    cut.end();
    image.setDevicePixelRatio(ratio_);
    return image;
}

}  // namespace vorlund
