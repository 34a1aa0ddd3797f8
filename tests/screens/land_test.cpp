// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QPainter>
#include <random>

#include "tests/screens/colours.h"
#include "ui/windows/owner_colours.h"
#include "ui/windows/owner_map.h"
#include "ui/windows/territory_rims.h"

// The land painted by OwnerMap, and the rims of territories on it.

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

const QSize Board(750, 525);

struct Land {
    explicit Land(qreal ratio = 1) : Seen((QSizeF(Board) * ratio).toSize(), QImage::Format_RGB32) {
        Seen.setDevicePixelRatio(ratio);
        Seen.fill(Qt::black);
    }

    QRegion Show(const OwnerMap::Owners& owners) {
        const QRegion changed = Map.Show(owners);
        QPainter painter(&Seen);
        Map.Paint(painter);
        return changed;
    }

    QRegion Show(Rim rim, const TerritorySet& territories) {
        const QRegion changed = Rims.Show(rim, territories);
        QPainter painter(&Seen);
        Map.Paint(painter);
        Rims.Paint(painter, QRect(QPoint(), Board));
        return changed;
    }

    Picture Printed{u"map"_s};
    TerritoryMap Territories;
    OwnerMap Map{Printed, Territories};
    TerritoryRims Rims{Territories};
    QImage Seen;
};

OwnerMap::Owners All(int owner) {
    OwnerMap::Owners owners{};
    owners.fill(owner);
    return owners;
}

/// The median colour of all land.
QRgb MedianColour(const Land& land) {
    std::array<std::vector<int>, 3> parts;
    for (int i = 0; i < Board.width() * Board.height(); i += 5) {
        const QPoint place(i % Board.width(), i / Board.width());
        if (land.Territories.At(QPointF(place) + QPointF(0.5, 0.5))) {
            const QRgb pixel = land.Seen.pixel(place);
            parts[0].push_back(qRed(pixel));
            parts[1].push_back(qGreen(pixel));
            parts[2].push_back(qBlue(pixel));
        }
    }
    for (std::vector<int>& part : parts) {
        std::nth_element(part.begin(), part.begin() + static_cast<int>(part.size() / 2), part.end());
    }
    return qRgb(parts[0].at(parts[0].size() / 2), parts[1].at(parts[1].size() / 2),
                parts[2].at(parts[2].size() / 2));
}

TEST(Land, OwnerColoursDifferForEachColourVision) {
    std::vector<QRgb> colours;
    for (int owner = 0; owner <= OwnerMap::Nobody; ++owner) {
        Land land;
        land.Show(All(owner));
        colours.push_back(MedianColour(land));
    }
    for (const auto& [name, vision] : ColourVisions()) {
        for (std::size_t a = 0; a < colours.size(); ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                EXPECT_GE(LabDistance(colours[a], colours[b], vision), 20)
                    << name << ", owners " << a << " and " << b;
            }
        }
    }
}

TEST(Land, APartialRepaintEqualsAFullOneAndStaysInTheReportedRegion) {
    std::mt19937 chance(7);
    for (const qreal ratio : {1.0, 1.25, 1.5, 1.875, 2.0}) {
        Land land(ratio);
        OwnerMap::Owners owners = All(OwnerMap::Nobody);
        land.Show(owners);
        for (const int changes : {1, 1, 1, 1, 2, 3, 12, 42, 0}) {
            const QImage before = land.Seen;
            for (int i = 0; i < changes; ++i) {
                owners[chance() % owners.size()] = static_cast<int>(chance() % 6);
            }
            const QRegion changed = land.Show(owners);
            Land whole(ratio);
            whole.Show(owners);
            EXPECT_EQ(land.Seen, whole.Seen) << "at " << ratio << " after " << changes << " changes";
            QImage outside = land.Seen;  // of the reported region
            QPainter painter(&outside);
            painter.setClipRegion(changed);
            painter.drawImage(0, 0, before);
            painter.end();
            EXPECT_EQ(outside, before) << "at " << ratio << " after " << changes << " changes";
        }
    }
}

TEST(Land, FrontsAreDarkLinesWithColouredEdges) {
    constexpr int x = 110;  // where the border of 2 and 7 is horizontal
    Land land;
    int y = 80;
    while (land.Territories.At(QPointF(x, y)) == 1) {
        ++y;
    }
    ASSERT_EQ(land.Territories.At(QPointF(x, y)), 6);
    const int line = y - 1;
    struct Across {
        QRgb North;
        int Line;
        QRgb South;
    };
    const auto look = [&](const OwnerMap::Owners& owners) {
        land.Show(owners);
        return Across{land.Seen.pixel(x, line - 2),
                      qGray(land.Seen.pixel(x, line)) + qGray(land.Seen.pixel(x, line - 1)),
                      land.Seen.pixel(x, line + 2)};
    };
    const auto fromEdge = [](QRgb seen, int owner) {
        return LabDistance(seen, OwnersColours[static_cast<std::size_t>(owner)].Edge,
                           ColourVisions()[0].second);
    };
    for (int owner = 0; owner < MaxPlayers; ++owner) {
        const int other = (owner + 1) % MaxPlayers;
        OwnerMap::Owners owners = All(owner);
        const Across within = look(owners);
        owners[6] = other;
        const Across front = look(owners);
        const Across beyond = look(All(other));
        EXPECT_LT(front.Line, std::min(within.Line, beyond.Line) * 3 / 4) << owner;
        EXPECT_LT(fromEdge(front.North, owner), fromEdge(within.North, owner) - 3) << owner;
        EXPECT_LT(fromEdge(front.South, other), fromEdge(beyond.South, other) - 3) << owner;
    }
}

TEST(Land, RimsComeAndGoWithinWhatIsPaintedAnew) {
    std::mt19937 chance(5);
    Land land(1.25);
    land.Show(All(OwnerMap::Nobody));
    const QImage bare = land.Seen;
    for (int i = 0; i < 24; ++i) {
        const QImage before = land.Seen;
        const QRegion changed =
            land.Show(static_cast<Rim>(i % 4), i < 20 ? TerritorySet(1ULL << chance() % 42) : TerritorySet());
        QImage untold = land.Seen;  // but for what was told to have changed
        QPainter painter(&untold);
        painter.setClipRegion(changed);
        painter.drawImage(0, 0, before);
        painter.end();
        EXPECT_EQ(untold, before) << i;
        EXPECT_NE(land.Seen, i < 23 ? bare : before) << i;
    }
    EXPECT_EQ(land.Seen, bare);
}

TEST(Land, ARimIsSeenOnEveryOwnersLand) {
    for (int owner = 0; owner <= OwnerMap::Nobody; ++owner) {
        Land land;
        land.Show(All(owner));
        const QImage bare = land.Seen;
        for (const Rim rim : {Rim::Lit, Rim::Changed, Rim::Conquered, Rim::Pointed}) {
            land.Show(rim, TerritorySet(1ULL << 35));  // China, which has some 200 pixels at its edge
            int plain = 0;
            for (int i = 0; i < Board.width() * Board.height(); ++i) {
                const QPoint place(i % Board.width(), i / Board.width());
                plain += Contrast(land.Seen.pixel(place), bare.pixel(place)) >= 2 ? 1 : 0;
            }
            EXPECT_GE(plain, 150) << "rim " << static_cast<int>(rim) << " on the land of " << owner;
            land.Show(rim, {});
        }
    }
}

}  // namespace
}  // namespace vorlund
