#include "state/consistent.h"

#include <algorithm>

namespace vorlund {
namespace {

bool OwnershipAgrees(const GameState& game, int t) {
    const Territory& territory = game.TerritoryAt(t);
    const bool owned = territory.Owner >= 0 && territory.Owner < game.NumPlayers;
    if (territory.Occupied != owned || (!owned && territory.Owner != NoOwner)) {
        return false;
    }
    for (int p = 0; p < MaxPlayers; ++p) {
        if (Owns(game, p, t) != (owned && p == territory.Owner)) {
            return false;
        }
    }
    return true;
}

bool UnitsAndBuildingsAreSound(const Territory& territory) {
    const bool empty = territory.Stationed.IsEmpty() && !territory.HasFactory && !territory.HasDefense;
    return territory.Stationed.Troops >= 0 && territory.Stationed.Tanks >= 0 && (territory.Occupied || empty);
}

bool PlayerIsSound(const Player& player) {
    const auto isLevel = [](std::int16_t level) { return level >= 0 && level <= 3; };
    const bool ownsNothing = std::find(player.Owns.begin(), player.Owns.end(), true) == player.Owns.end();
    return isLevel(player.EconomyLevel) && isLevel(player.WarfareLevel) && isLevel(player.NuclearLevel) &&
           player.IsDead == ownsNothing;
}

}  // namespace

bool Consistent(const GameState& game) {
    if (game.NumPlayers < 2 || game.NumPlayers > MaxPlayers || game.CurrentPlayer < 0 ||
        game.CurrentPlayer >= game.NumPlayers) {
        return false;
    }
    for (int t = 0; t < NumTerritories; ++t) {
        if (!OwnershipAgrees(game, t) || !UnitsAndBuildingsAreSound(game.TerritoryAt(t))) {
            return false;
        }
    }
    int dead = 0;
    for (int p = 0; p < game.NumPlayers; ++p) {
        if (!PlayerIsSound(game.PlayerAt(p))) {
            return false;
        }
        dead += game.PlayerAt(p).IsDead ? 1 : 0;
    }
    return dead == game.DeadPlayers;
}

}  // namespace vorlund
