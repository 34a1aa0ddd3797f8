#include "tests/engine/entries.h"

#include <array>
#include <vector>

namespace vorlund {
namespace {

constexpr std::array Nasty{"",     " ",   "abc", "0",    "-1",    "-0.4",  ".5",     "1.5", "2.5",  "41.5",
                           "42.5", "43",  "4e4", "-9e9", "32767", "32768", "-32768", "1e3", "1e-9", "1e999",
                           "+3",   " 7 ", "7 7", "0x1F", "inf",   "nan",   "1,5",    "--1", "+-1",  "5.",
                           ".",    "1e",  "\t1", "1\n",  "\r",    "\"1\"", "½",      "99",  "3.9",  "-.5"};

bool OneIn(int n, Random& hands) {
    return hands.Draw(n) == 0;
}

int OwnTerritory(const GameState& game, Random& hands) {
    std::vector<int> own;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, game.CurrentPlayer, t)) {
            own.push_back(t);
        }
    }
    return own.empty() ? hands.Draw(NumTerritories)
                       : own[static_cast<std::size_t>(hands.Draw(static_cast<int>(own.size())))];
}

std::string NastyEntry(Random& hands) {
    return Nasty[static_cast<std::size_t>(hands.Draw(static_cast<int>(Nasty.size())))];
}

}  // namespace

std::string TerritoryEntry(const GameState& game, Random& hands) {
    if (OneIn(8, hands)) {
        return NastyEntry(hands);
    }
    const int t = OneIn(4, hands) ? hands.Draw(NumTerritories) : OwnTerritory(game, hands);
    return std::to_string(t + 1);
}

std::string QuantityEntry(int limit, Random& hands) {
    if (OneIn(8, hands)) {
        return NastyEntry(hands);
    }
    if (OneIn(3, hands)) {
        return std::to_string(limit);
    }
    if (OneIn(4, hands) || limit <= 0) {
        return "";
    }
    return std::to_string(hands.Draw(limit + 2));
}

RouteEntries RandomRoute(const GameState& game, Random& hands) {
    int from = OwnTerritory(game, hands);
    for (int tries = 0; tries < 3 && game.TerritoryAt(from).Troops + game.TerritoryAt(from).Tanks == 0;
         ++tries) {
        from = OwnTerritory(game, hands);
    }
    const Territory& source = game.TerritoryAt(from);
    const auto slot = static_cast<std::size_t>(hands.Draw(NeighbourSlots));
    const int to = source.Neighbours[slot] == NoNeighbour ? source.Neighbours[0] : source.Neighbours[slot];
    RouteEntries route{std::to_string(from + 1), std::to_string(to + 1), source.Troops, source.Tanks};
    if (OneIn(10, hands)) {
        route.From = TerritoryEntry(game, hands);
    }
    if (OneIn(10, hands)) {
        route.To = TerritoryEntry(game, hands);
    }
    return route;
}

}  // namespace vorlund
