#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "state/world.h"

namespace vorlund {
namespace {

constexpr int PictureWidth = 750;
constexpr int LastLandRow = 391;

// In tenths of a pixel, as the file has them.
using Point = std::pair<int, int>;
using Pair = std::pair<int, int>;

struct Ring {
    int territory = 0;
    std::vector<Point> points;
    int top = 0;
    int bottom = 0;
};

std::vector<Ring> ReadOutlines() {
    std::ifstream file(VORLUND_SOURCE_DIR "/assets/map/outlines.txt");
    std::vector<Ring> rings;
    int territory = 0;
    std::size_t count = 0;
    while (file >> territory >> count) {
        Ring ring{territory, std::vector<Point>(count)};
        ring.top = PictureWidth * 10;
        for (Point& point : ring.points) {
            file >> point.first >> point.second;
            ring.top = std::min(ring.top, point.second);
            ring.bottom = std::max(ring.bottom, point.second);
        }
        EXPECT_TRUE(file) << "a ring of territory " << territory << " breaks off";
        rings.push_back(ring);
    }
    EXPECT_TRUE(file.eof());
    return rings;
}

const std::vector<Ring>& Outlines() {
    static const std::vector<Ring> rings = ReadOutlines();
    return rings;
}

bool IsInside(const Ring& ring, Point place) {
    if (place.second < ring.top || place.second > ring.bottom) {
        return false;
    }
    bool inside = false;
    Point a = ring.points.back();
    for (const Point& b : ring.points) {
        if ((a.second > place.second) != (b.second > place.second)) {
            const double crossing = a.first + static_cast<double>(place.second - a.second) *
                                                  (b.first - a.first) / (b.second - a.second);
            if (place.first < crossing) {
                inside = !inside;
            }
        }
        a = b;
    }
    return inside;
}

/// The numbers of the territories whose land holds a place; a ring within a ring is a hole.
std::set<int> TerritoriesAt(Point place) {
    std::set<int> found;
    for (const Ring& ring : Outlines()) {
        if (IsInside(ring, place) && !found.insert(ring.territory).second) {
            found.erase(ring.territory);
        }
    }
    return found;
}

/// The pairs of territories that have an edge in common.
std::set<Pair> DrawnBorders() {
    std::map<std::pair<Point, Point>, std::set<int>> owners;
    for (const Ring& ring : Outlines()) {
        Point a = ring.points.back();
        for (const Point& b : ring.points) {
            owners[std::minmax(a, b)].insert(ring.territory);
            a = b;
        }
    }
    std::set<Pair> borders;
    for (const auto& [edge, territories] : owners) {
        EXPECT_LE(territories.size(), 2U) << "three territories own an edge at " << edge.first.first;
        if (territories.size() == 2) {
            borders.emplace(*territories.begin(), *territories.rbegin());
        }
    }
    return borders;
}

std::set<Pair> NeighbourPairs() {
    std::set<Pair> pairs;
    for (int t = 0; t < NumTerritories; ++t) {
        for (const int other : World[static_cast<std::size_t>(t)].Neighbours) {
            if (other < NumTerritories) {
                pairs.insert(std::minmax({t + 1, other + 1}));
            }
        }
    }
    return pairs;
}

TEST(MapOutlines, EveryMarkerStandsOnTheLandOfItsTerritoryAlone) {
    for (int t = 0; t < NumTerritories; ++t) {
        const WorldEntry& entry = World[static_cast<std::size_t>(t)];
        for (const int down : {0, 5}) {
            EXPECT_EQ(TerritoriesAt({entry.MapX * 10, (entry.MapY + down) * 10}), std::set<int>{t + 1})
                << entry.Name << ", " << down << " pixels below its position";
        }
    }
}

TEST(MapOutlines, LakesAndIslandsBelongToTheirTerritoryAndTheSeaToNone) {
    const std::map<Point, std::set<int>> places{
        {{240, 129}, {}},   // the North Atlantic
        {{379, 154}, {}},   // the Mediterranean
        {{443, 138}, {}},   // the Caspian Sea
        {{153, 112}, {8}},  // Lake Superior
        {{299, 72}, {5}},   // Iceland
        {{434, 276}, {27}}  // Madagascar
    };
    for (const auto& [place, territories] : places) {
        EXPECT_EQ(TerritoriesAt({place.first * 10, place.second * 10}), territories) << place.first;
    }
}

TEST(MapOutlines, DrawnBordersAreTheNeighbourTableAndTheRestIsJoinedBySea) {
    const std::set<Pair> joinedBySea{{1, 29},  {4, 5},   {5, 16},  {8, 11},  {10, 11}, {11, 12}, {14, 23},
                                     {16, 18}, {17, 23}, {17, 24}, {19, 21}, {20, 24}, {22, 24}, {25, 28},
                                     {34, 35}, {38, 39}, {39, 40}, {39, 41}, {40, 42}};
    std::set<Pair> expected = NeighbourPairs();
    for (const Pair& pair : joinedBySea) {
        EXPECT_EQ(expected.erase(pair), 1U) << pair.first << " and " << pair.second << " are no neighbours";
    }
    EXPECT_EQ(DrawnBorders(), expected);
}

TEST(MapOutlines, LandNeverOverlapsAndLeavesTheFootOfTheMapFree) {
    for (int y = 0; y <= LastLandRow * 10; y += 43) {
        for (int x = 0; x < PictureWidth * 10; x += 43) {
            EXPECT_LE(TerritoriesAt({x, y}).size(), 1U) << x << ", " << y;
        }
    }
    for (const Ring& ring : Outlines()) {
        const bool fits = std::all_of(ring.points.begin(), ring.points.end(), [](const Point& point) {
            return point.first > 0 && point.first < PictureWidth * 10 && point.second > 0 &&
                   point.second <= LastLandRow * 10;
        });
        EXPECT_TRUE(fits) << "territory " << ring.territory;
    }
}

}  // namespace
}  // namespace vorlund
