#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

#include "state/world.h"

namespace vorlund {
namespace {

using Point = std::pair<int, int>;  // in tenths of a pixel, as the file has them

/// True when a ray from `place` to the left crosses the edge from `a` to `b`.
bool Crosses(Point place, Point a, Point b) {
    return (a.second > place.second) != (b.second > place.second) &&
           place.first > a.first + static_cast<double>(place.second - a.second) * (b.first - a.first) /
                                       (b.second - a.second);
}

TEST(Map, OutlinesHaveTheNeighboursBordersAndHoldTheMarkers) {
    std::ifstream file(VORLUND_SOURCE_DIR "/assets/map/outlines.txt");
    std::map<std::pair<Point, Point>, std::set<int>> owners;  // of each edge, by number
    std::array<std::set<int>, NumTerritories> lands;  // that hold each marker; a ring within a ring is a hole
    int territory = 0;
    for (std::size_t count = 0; file >> territory >> count;) {
        std::vector<Point> ring(count);
        for (Point& point : ring) {
            file >> point.first >> point.second;
            EXPECT_TRUE(point.first > 0 && point.first < 7500 && point.second > 0 && point.second <= 3910);
        }
        Point a = ring.back();
        for (const Point& b : ring) {
            owners[std::minmax(a, b)].insert(territory);
            for (std::size_t t = 0; t < World.size(); ++t) {
                if (Crosses({World[t].MapX * 10, World[t].MapY * 10}, a, b) &&
                    !lands[t].insert(territory).second) {
                    lands[t].erase(territory);
                }
            }
            a = b;
        }
    }
    EXPECT_TRUE(file.eof());
    // Neighbours without a common border, joined by sea.
    std::set<std::set<int>> expected{{1, 29},  {4, 5},   {5, 16},  {8, 11},  {10, 11}, {11, 12}, {14, 23},
                                     {16, 18}, {17, 23}, {17, 24}, {19, 21}, {20, 24}, {22, 24}, {25, 28},
                                     {34, 35}, {38, 39}, {39, 40}, {39, 41}, {40, 42}};
    for (const auto& [edge, territories] : owners) {
        if (territories.size() > 1) {
            expected.insert(territories);
        }
    }
    std::set<std::set<int>> neighbours;
    for (std::size_t t = 0; t < World.size(); ++t) {
        const int number = static_cast<int>(t) + 1;
        EXPECT_EQ(lands[t], std::set<int>{number}) << World[t].Name;
        for (const int other : World[t].Neighbours) {
            if (other != NoNeighbour) {
                neighbours.insert({number, other + 1});
            }
        }
    }
    EXPECT_EQ(neighbours, expected);
}

}  // namespace
}  // namespace vorlund
