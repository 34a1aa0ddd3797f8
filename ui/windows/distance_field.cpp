// SPDX-License-Identifier: MIT
#include "ui/windows/distance_field.h"

#include <algorithm>
#include <cmath>

namespace vorlund {
namespace {

qreal SquaredDistance(QPointF place, QPointF from, QPointF to) {
    const QPointF along = to - from;
    const qreal length = QPointF::dotProduct(along, along);
    const qreal share = length > 0 ? QPointF::dotProduct(place - from, along) / length : 0;
    const QPointF away = place - from - along * std::clamp(share, 0.0, 1.0);
    return QPointF::dotProduct(away, away);
}

}  // namespace

QRect DevicePixels(const QRect& part, qreal ratio) {
    return QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio).toAlignedRect();
}

DistanceField::DistanceField(const QRect& pixels, qreal ratio, qreal reach)
    : pixels_(pixels),
      ratio_(ratio),
      reach_(reach),
      squares_(static_cast<std::size_t>(pixels.width() * pixels.height()), reach * reach) {}

std::size_t DistanceField::Index(int x, int y) const {
    return static_cast<std::size_t>((y - pixels_.top()) * pixels_.width() + x - pixels_.left());
}

void DistanceField::Add(const QPolygonF& line) {
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QRectF box =
            QRectF(line[i - 1], line[i]).normalized().adjusted(-reach_, -reach_, reach_, reach_);
        const QRect reached = DevicePixels(box.toAlignedRect(), ratio_).intersected(pixels_);
        for (int y = reached.top(); y <= reached.bottom(); ++y) {
            for (int x = reached.left(); x <= reached.right(); ++x) {
                qreal& square = squares_[Index(x, y)];
                square = std::min(square,
                                  SquaredDistance(QPointF(x + 0.5, y + 0.5) / ratio_, line[i - 1], line[i]));
            }
        }
    }
}

int DistanceField::At(int x, int y) const {
    return static_cast<int>(std::sqrt(squares_[Index(x, y)]) / reach_ * Far);
}

}  // namespace vorlund
