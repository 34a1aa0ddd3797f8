// SPDX-License-Identifier: MIT
#include "state/ownership.h"

#include <algorithm>

#include "state/int16.h"

namespace vorlund {

int CountOwned(const GameState& game, int player) {
    const auto& owns = game.PlayerAt(player).Owns;
    return static_cast<int>(std::count(owns.begin(), owns.end(), true));
}

void Claim(GameState& game, int t, int player) {
    Territory& territory = game.TerritoryAt(t);
    territory.Occupied = true;
    territory.Owner = static_cast<std::int16_t>(player);
    game.PlayerAt(player).Owns[static_cast<std::size_t>(t)] = true;
}

void Abandon(GameState& game, int t) {
    Territory& territory = game.TerritoryAt(t);
    Player& owner = game.PlayerAt(territory.Owner);
    if (territory.HasFactory) {
        Add(owner.Factories, -1);
    }
    owner.Owns[static_cast<std::size_t>(t)] = false;
    territory.Occupied = false;
    territory.Owner = NoOwner;
    territory.HasFactory = false;
    territory.HasDefense = false;
}

void Capture(GameState& game, int t, const Units& force) {
    Abandon(game, t);
    Claim(game, t, game.CurrentPlayer);
    game.TerritoryAt(t).Stationed = force;
}

}  // namespace vorlund
