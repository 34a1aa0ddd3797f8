#include "ui/windows/territory_map.h"

#include <QFile>
#include <QPolygonF>
#include <QTextStream>

namespace vorlund {

TerritoryMap::TerritoryMap() {
    QFile file(QStringLiteral(":/map/outlines.txt"));
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    // A ring a line: the territory's number, how many points, and the points in tenths of a pixel.
    QTextStream rings(&file);
    int number = 0;
    int points = 0;
    for (rings >> number >> points; rings.status() == QTextStream::Ok; rings >> number >> points) {
        QPolygonF ring;
        for (int i = 0; i < points; ++i) {
            int x = 0;
            int y = 0;
            rings >> x >> y;
            ring << QPointF(x / 10.0, y / 10.0);
        }
        shapes_[static_cast<std::size_t>(number - 1)].addPolygon(ring);
    }
}

std::optional<int> TerritoryMap::At(QPointF place) const {
    for (std::size_t t = 0; t < shapes_.size(); ++t) {
        // Asked of the box first: the shapes have hundreds of points.
        if (shapes_[t].controlPointRect().contains(place) && shapes_[t].contains(place)) {
            return static_cast<int>(t);
        }
    }
    return std::nullopt;
}

}  // namespace vorlund
