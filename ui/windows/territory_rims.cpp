// SPDX-License-Identifier: MIT
#include "ui/windows/territory_rims.h"

#include <QPainter>

namespace vorlund {
namespace {

struct RimLook {
    QColor Line;
    qreal Width;  // in pixels of the board
    QColor Wash;  // over the land within
};

constexpr qreal CasingWidth = 1.2;  // of the dark line within the bright one
constexpr QRgb Casing = qRgba(8, 14, 26, 170);

// In the order of Rim
const std::array<RimLook, 4>& Looks() {
    static const std::array<RimLook, 4> looks{{{QColor(255, 252, 232), 1.5, QColor(255, 255, 255, 26)},
                                               {QColor(130, 235, 255), 1.3, Qt::transparent},
                                               {QColor(90, 225, 255), 2.8, Qt::transparent},
                                               {QColor(255, 255, 255), 2.6, QColor(255, 255, 255, 60)}}};
    return looks;
}

}  // namespace

QRegion TerritoryRims::Show(Rim rim, const TerritorySet& territories) {
    TerritorySet& shown = shown_[static_cast<std::size_t>(rim)];
    const TerritorySet changed = shown ^ territories;
    shown = territories;
    QRegion region;
    for (int t = 0; t < NumTerritories; ++t) {
        if (changed.test(static_cast<std::size_t>(t))) {
            region |= TouchedBy(t);
        }
    }
    return region;
}

QRect TerritoryRims::TouchedBy(int territory) const {
    return map_.Outline(territory).controlPointRect().toAlignedRect().adjusted(-1, -1, 1, 1);
}

void TerritoryRims::Paint(QPainter& painter, const QRegion& part) const {
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t rim = 0; rim < shown_.size(); ++rim) {
        const RimLook& look = Looks()[rim];
        for (int t = 0; t < NumTerritories; ++t) {
            if (!shown_[rim].test(static_cast<std::size_t>(t)) || !part.intersects(TouchedBy(t))) {
                continue;
            }
            const QPainterPath& outline = map_.Outline(t);
            painter.save();
            painter.setClipPath(outline, Qt::IntersectClip);
            painter.fillPath(outline, look.Wash);
            // Half of each line lies outside and is cut off.
            painter.strokePath(outline, QPen(QColor::fromRgba(Casing), 2 * (look.Width + CasingWidth)));
            painter.strokePath(outline, QPen(look.Line, 2 * look.Width));
            painter.restore();
        }
    }
}

}  // namespace vorlund
