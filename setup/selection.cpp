// SPDX-License-Identifier: MIT
#include "setup/selection.h"

#include <algorithm>

#include "state/ownership.h"
#include "state/player_words.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

struct Treasury {
    std::int16_t Money;
    std::int16_t Oil;
};

constexpr Treasury HumanTreasury{HumanStartingMoney, 0};
constexpr Treasury ComputerTreasury{9000, 9000};

void Settle(GameState& game, int t, int p, const Treasury& treasury) {
    Claim(game, t, p);
    Territory& territory = game.TerritoryAt(t);
    territory.HasFactory = true;
    territory.Stationed = {StartingTroops, 0};
    Player& player = game.PlayerAt(p);
    player.Total = {StartingTroops, 0};
    player.Factories = 1;
    player.Money = treasury.Money;
    player.Oil = treasury.Oil;
}

bool IsSecluded(const GameState& game, int t) {
    const Territory& territory = game.TerritoryAt(t);
    const auto& neighbours = territory.Neighbours;
    return !territory.Occupied && std::none_of(neighbours.begin(), neighbours.end(), [&](std::int16_t n) {
        return n != NoNeighbour && game.TerritoryAt(n).Occupied;
    });
}

}  // namespace

std::string Selection::Open() {
    picks_ = 0;
    for (int p = 0; p < game_.NumPlayers; ++p) {
        picks_ += game_.PlayerAt(p).IsComputer ? 1 : 0;
    }
    do {
        random_.Reseed();
        game_.StartingPlayer = static_cast<std::int16_t>(random_.Draw(game_.NumPlayers));
        game_.CurrentPlayer = game_.StartingPlayer;
    } while (game_.Current().IsComputer);
    return PlayerAndName(game_, game_.CurrentPlayer) + ", has been chosen to select first.";
}

TerritorySet Selection::Free() const {
    return TerritoriesWhere([this](int t) { return !game_.TerritoryAt(t).Occupied; });
}

Selection::Step Selection::Entr(std::string_view typed) {
    const auto t = ReadTerritory(typed, TerritoryRounding::IndexInRange);
    if (!t) {
        return Reject("Invalid territory selection.");
    }
    if (!Has(Free(), *t)) {
        return Reject("Territory already occupied.");
    }
    Settle(game_, *t, game_.CurrentPlayer, HumanTreasury);
    Step step{Step::Kind::NextHuman, PlayerWords(game_.CurrentPlayer) + " selected " +
                                         std::string(game_.TerritoryAt(*t).Name) + "\r"};
    ++picks_;
    do {
        game_.CurrentPlayer = static_cast<std::int16_t>((game_.CurrentPlayer + 1) % game_.NumPlayers);
        random_.Reseed();
        if (picks_ == game_.NumPlayers) {
            ClaimForComputers();
            game_.CurrentPlayer = game_.StartingPlayer;
            step.What = Step::Kind::Ended;
            return step;
        }
    } while (game_.Current().IsComputer);
    step.Message += PlayerAndName(game_, game_.CurrentPlayer) + ", select a territory.";
    return step;
}

Selection::Step Selection::Reject(const std::string& reason) const {
    return {Step::Kind::Rejected,
            reason + "\r" + PlayerAndName(game_, game_.CurrentPlayer) + ", select again."};
}

void Selection::ClaimForComputers() {
    for (int p = 0; p < game_.NumPlayers; ++p) {
        if (!game_.PlayerAt(p).IsComputer) {
            continue;
        }
        int t = 0;
        do {
            t = random_.Draw(NumTerritories);
        } while (!IsSecluded(game_, t));
        Settle(game_, t, p, ComputerTreasury);
    }
}

}  // namespace vorlund
