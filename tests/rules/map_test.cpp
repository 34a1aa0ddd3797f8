// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

#include "state/world.h"

namespace vorlund {
namespace {

using Point = std::pair<int, int>;  ///< in tenths of a pixel, as in the files

TEST(World, HasItsNamesPlacesAndSlotsInOrder) {
    std::uint32_t checksum = 0;
    const auto add = [&](int value) { checksum = checksum * 31 + static_cast<std::uint32_t>(value); };
    for (const WorldEntry& entry : World) {
        std::for_each(entry.Name.begin(), entry.Name.end(), add);
        std::for_each(entry.Neighbours.begin(), entry.Neighbours.end(), add);
        for (const int value : {int{entry.Value}, int{entry.MapX}, int{entry.MapY}, int{entry.HasOil}}) {
            add(value);
        }
    }
    EXPECT_EQ(checksum, 898975971U) << "the table has changed";
}

TEST(Map, OutlinesAndBordersAgreeWithNeighboursAndMarkers) {
    std::ifstream file(VORLUND_SOURCE_DIR "/assets/map/outlines.txt");
    // Neighbours across the sea, by number; those with a common border are added below.
    std::set<std::set<int>> expected{{1, 29},  {4, 5},   {5, 16},  {8, 11},  {10, 11}, {11, 12}, {14, 23},
                                     {16, 18}, {17, 23}, {17, 24}, {19, 21}, {20, 24}, {22, 24}, {25, 28},
                                     {34, 35}, {38, 39}, {39, 40}, {39, 41}, {40, 42}};
    std::map<std::pair<Point, Point>, int> edges;
    std::map<std::pair<Point, Point>, std::set<int>> shared;
    std::set<int> marked;  // territories that contain their marker; a ring within a ring is a hole
    int territory = 0;
    for (std::size_t count = 0; file >> territory >> count;) {
        const WorldEntry& land = World.at(static_cast<std::size_t>(territory) - 1);
        std::vector<Point> ring(count);
        for (Point& point : ring) {
            file >> point.first >> point.second;
        }
        Point a = ring.back();
        for (const Point& b : ring) {
            const auto [edge, isNew] = edges.emplace(std::minmax(a, b), territory);
            if (!isNew) {
                expected.insert(shared[edge->first] = {edge->second, territory});
            }
            // The marker is inside if a ray to its left crosses the outlines an odd number of times.
            const double down = land.MapY * 10 - a.second;
            if ((down < 0) != (b.second > land.MapY * 10) &&
                land.MapX * 10 - a.first > down * (b.first - a.first) / (b.second - a.second) &&
                !marked.insert(territory).second) {
                marked.erase(territory);
            }
            a = b;
        }
    }
    EXPECT_TRUE(file.eof() && marked.size() == World.size());
    std::set<std::set<int>> neighbours;
    for (int t = 0; t < NumTerritories; ++t) {
        for (const int other : World[static_cast<std::size_t>(t)].Neighbours) {
            neighbours.insert({t + 1, other + 1});
        }
        neighbours.erase({t + 1, NoNeighbour + 1});
    }
    EXPECT_EQ(neighbours, expected);
    std::ifstream borders(VORLUND_SOURCE_DIR "/assets/map/borders.txt");
    int other = 0;
    for (std::size_t count = 0; borders >> territory >> other >> count;) {
        Point a;
        for (std::size_t i = 0; i < count; ++i) {
            Point b;
            borders >> b.first >> b.second;
            const auto edge = i > 0 ? shared.find(std::minmax(a, b)) : shared.end();
            if (edge != shared.end() && edge->second == std::set{territory, other}) {
                shared.erase(edge);
            }
            a = b;
        }
    }
    EXPECT_TRUE(borders.eof() && shared.empty()) << shared.size() << " edges are in no border";
}

}  // namespace
}  // namespace vorlund
