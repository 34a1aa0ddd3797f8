// SPDX-License-Identifier: MIT
#include "computer/reinforcement.h"

#include "computer/borders.h"
#include "state/int16.h"

namespace vorlund {
namespace {

constexpr int TankBonusFaces = 80;  ///< less the number of territories
constexpr int TankBonusBelow = 12;
constexpr int QuietTankRoll = 4;

int CountContacts(const GameState& game) {
    int contacts = 0;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, game.CurrentPlayer, t)) {
            for (const std::int16_t neighbour : game.TerritoryAt(t).Neighbours) {
                contacts += IsEnemy(game, neighbour) ? 1 : 0;
            }
        }
    }
    return contacts;
}

/// Adds a troop with a chance of 3 in `Troops` (always, up to three) and a tank with one of 1 in 2 x `Tanks`
/// + 3.
void ReinforceQuietBorder(Units& units, Random& random) {
    if (random.Draw(units.Troops) < 3) {
        Add(units.Troops, 1);
    }
    if (random.Draw(2 * units.Tanks + 3) == 0) {
        Add(units.Tanks, 1);
    }
}

void ReinforceBorders(const GameState& game, Random& random, Territory& territory, int share,
                      bool tankBonus) {
    for (const std::int16_t neighbour : territory.Neighbours) {
        if (neighbour == NoNeighbour) {
            continue;
        }
        if (IsEnemy(game, neighbour)) {
            Add(territory.Stationed.Troops, share);
            Add(territory.Stationed.Tanks, tankBonus ? 1 : 0);
        } else {
            ReinforceQuietBorder(territory.Stationed, random);
        }
    }
}

}  // namespace

void Reinforce(GameState& game, Random& random, int territoryCount) {
    const int pool = territoryCount * TroopsPerTenTerritories / 10;
    const bool tankBonus = random.Draw(TankBonusFaces - territoryCount) < TankBonusBelow;
    const int contacts = CountContacts(game);
    for (int t = 0; t < NumTerritories; ++t) {
        if (!Owns(game, game.CurrentPlayer, t)) {
            continue;
        }
        Territory& territory = game.TerritoryAt(t);
        if (contacts > 0) {
            ReinforceBorders(game, random, territory, pool / contacts, tankBonus);
        } else {
            Add(territory.Stationed.Troops, pool / territoryCount + 1);
            Add(territory.Stationed.Tanks, random.Draw(QuietTankFaces) == QuietTankRoll ? 1 : 0);
        }
    }
}

}  // namespace vorlund
