// SPDX-License-Identifier: MIT
#include "turn/upkeep.h"

#include <cmath>

#include "state/int16.h"
#include "state/ownership.h"
#include "state/player_words.h"

namespace vorlund {
namespace {

constexpr int ResearchRoll = 2;

struct Yield {
    std::int16_t Income = 0;  ///< dollars
    int Oil = 0;              ///< barrels
};

Yield YieldOf(const GameState& game, int player) {
    int income = 0;
    Yield yield;
    for (int t = 0; t < NumTerritories; ++t) {
        if (!Owns(game, player, t)) {
            continue;
        }
        income += TerritoryIncome(game.TerritoryAt(t).Value);
        yield.Oil += game.TerritoryAt(t).HasOil ? OilFieldBarrels : 0;
    }
    yield.Income = ClampInt16(RaisedByEconomy(income, game.PlayerAt(player)));
    return yield;
}

void Research(Player& player, Random& random, std::string& body) {
    const bool found =
        random.Draw(ResearchFaces[static_cast<std::size_t>(player.NuclearLevel)]) == ResearchRoll;
    if (found && !player.HasNuke) {
        player.HasNuke = true;
        body += "Your nuclear development team has researched a nuclear bomb.\r\r";
    }
}

void Collapse(GameState& game, int p) {
    Player& player = game.PlayerAt(p);
    player.IsDead = true;
    ++game.DeadPlayers;
    const std::int16_t factories = player.Factories;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, p, t)) {
            Abandon(game, t);
            game.TerritoryAt(t).Stationed = {};
        }
    }
    player.Factories = factories;  // Abandon counts them down, but a dead player's totals are kept
}

}  // namespace

std::int16_t MoneyUpkeep(const Player& player) {
    return ClampInt16(TroopUpkeep * player.Total.Troops + FactoryUpkeep * player.Factories);
}

int RaisedByEconomy(int income, const Player& player) {
    const double multiplier = player.EconomyLevel * (EconomyPercent / 100.0) + 1.0;
    return static_cast<int>(std::floor(income * multiplier));
}

Report RunUpkeep(GameState& game, Random& random, int p) {
    Player& player = game.PlayerAt(p);
    const std::int16_t upkeep = MoneyUpkeep(player);
    const std::int16_t tankUpkeep = ClampInt16(std::int64_t{TankUpkeepBarrels} * player.Total.Tanks);
    const Yield yield = YieldOf(game, p);
    int money = player.Money - upkeep + yield.Income;
    int oil = player.Oil - tankUpkeep + yield.Oil;

    Report report;
    report.Title = "Vorlund - Upkeep";
    report.Headline = "Upkeep status for " + PlayerAndName(game, p) + ".";
    std::string& body = report.Body;
    body = "Upkeep for Troops and Factories: $" + std::to_string(upkeep) + "\r" +
           "Upkeep for Tanks: " + std::to_string(tankUpkeep) + " barrels\r\r" +
           "Money collected from territories: $" + std::to_string(yield.Income) + "\r" +
           "Remaining money after expenses: $" + std::to_string(yield.Income - upkeep) + "\r\r";
    Research(player, random, body);

    if (oil < 0) {
        money += oil * MissingBarrelPrice;
        oil = 0;
    }
    player.Money = ClampInt16(money);
    player.Oil = ClampInt16(oil);
    if (player.Money < 0) {
        body += "Your economy is in debt- economic unrest spreads through your land.\r";
        Add(player.DebtTurns, 1);
    }
    if (player.DebtTurns >= DebtTurnsBeforeCollapse) {
        body += "Your territories collapse due to prolonged periods of lack of funds.";
        Collapse(game, p);
    }
    return report;
}

}  // namespace vorlund
