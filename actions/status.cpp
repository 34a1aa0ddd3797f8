// SPDX-License-Identifier: MIT
#include "actions/status.h"

#include "turn/upkeep.h"

namespace vorlund {
namespace {

std::string UpkeepEstimate(const GameState& game) {
    const Player& player = game.Current();
    int income = 0;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Owns(game, game.CurrentPlayer, t)) {
            income += 5 * game.TerritoryAt(t).Value + 10;
        }
    }
    const int net = RaisedByEconomy(income, player) - MoneyUpkeep(player);
    return net > 0 ? "+ $" + std::to_string(net) : "- $" + std::to_string(-net);
}

}  // namespace

StatusLines DescribeStatus(const GameState& game) {
    const Player& player = game.Current();
    StatusLines lines;
    lines.Title = "Vorlund - Player " + std::to_string(game.CurrentPlayer + 1) + " status";
    lines.Name = player.Name;
    lines.Money = "$" + std::to_string(player.Money);
    lines.Oil = std::to_string(player.Oil);
    lines.Troops = std::to_string(player.Total.Troops);
    lines.Tanks = std::to_string(player.Total.Tanks);
    lines.Factories = std::to_string(player.Factories);
    lines.Debt = std::to_string(player.DebtTurns);
    lines.Economy = std::to_string(player.EconomyLevel);
    lines.Warfare = std::to_string(player.WarfareLevel);
    lines.Nuclear = std::to_string(player.NuclearLevel) +
                    (player.HasNuke ? "\rNuke awaiting use..." : "\rDeveloping nuke...");
    lines.AttacksMoves = std::to_string(player.AttacksLeft) + " / " + std::to_string(player.MovesLeft);
    lines.Upkeep = UpkeepEstimate(game);
    return lines;
}

}  // namespace vorlund
