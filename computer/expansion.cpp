// SPDX-License-Identifier: MIT
#include "computer/expansion.h"

#include <optional>

#include "state/ownership.h"

namespace vorlund {
namespace {

constexpr int DirectionFaces = 10;
constexpr int ForwardUpTo = 4;
constexpr int DefenseRoll = 2;

/// The first index of a scan, and the step to the next.
struct Direction {
    int Start;
    int Step;
};

Direction DrawDirection(Random& random, int size) {
    return random.Draw(DirectionFaces) <= ForwardUpTo ? Direction{0, 1} : Direction{size - 1, -1};
}

std::optional<int> EmptyNeighbour(const GameState& game, int t, Direction slots) {
    for (int slot = slots.Start; slot >= 0 && slot < NeighbourSlots; slot += slots.Step) {
        const int neighbour = game.TerritoryAt(t).Neighbours[static_cast<std::size_t>(slot)];
        if (neighbour != NoNeighbour && !game.TerritoryAt(neighbour).Occupied) {
            return neighbour;
        }
    }
    return std::nullopt;
}

void Settle(GameState& game, Random& random, int t, std::string& body) {
    Claim(game, t, game.CurrentPlayer);
    Territory& territory = game.TerritoryAt(t);
    territory.Stationed.Troops = SettlingTroops;
    body += "Moved forces into " + std::string(territory.Name) + ".\r";
    if (random.Draw(DefenseFaces) == DefenseRoll) {
        territory.HasDefense = true;
    }
}

}  // namespace

int Expand(GameState& game, Random& random, int quota, std::string& body) {
    const Direction territories = DrawDirection(random, NumTerritories);
    const Direction slots = DrawDirection(random, NeighbourSlots);
    int claims = 0;
    int cursor = territories.Start;
    while (claims < quota && cursor >= 0 && cursor < NumTerritories) {
        // After a claim the cursor stays, because the same territory may have another unoccupied neighbour.
        const auto target =
            Owns(game, game.CurrentPlayer, cursor) ? EmptyNeighbour(game, cursor, slots) : std::nullopt;
        if (target) {
            Settle(game, random, *target, body);
            ++claims;
        } else {
            cursor += territories.Step;
        }
    }
    return claims;
}

}  // namespace vorlund
