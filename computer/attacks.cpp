// SPDX-License-Identifier: MIT
#include "computer/attacks.h"

#include <optional>

#include "actions/battle.h"
#include "actions/strike.h"
#include "computer/borders.h"
#include "state/ownership.h"
#include "state/player_words.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

struct Route {
    int From;
    int To;
};

bool StrongEnough(const Units& from, const Units& to) {
    return from.Troops > TroopsThatNeverAttack &&
           2 * from.Tanks + from.Troops > 3 * to.Tanks + to.Troops + AttackMargin;
}

std::optional<Route> ChooseAttack(const GameState& game) {
    for (int t = 0; t < NumTerritories; ++t) {
        if (!Owns(game, game.CurrentPlayer, t)) {
            continue;
        }
        const Territory& from = game.TerritoryAt(t);
        for (const std::int16_t neighbour : from.Neighbours) {
            if (IsEnemy(game, neighbour) &&
                StrongEnough(from.Stationed, game.TerritoryAt(neighbour).Stationed)) {
                return Route{t, neighbour};
            }
        }
    }
    return std::nullopt;
}

std::string BattleLines(const GameState& game, const Battle& battle, bool won) {
    const auto losses = [](const Units& lost) {
        return std::to_string(lost.Troops) + "/" + std::to_string(lost.Tanks) + " troops/tanks";
    };
    return "\rAttack on " + std::string(game.TerritoryAt(battle.Target).Name) + ", " +
           game.PlayerAt(battle.Defender.Player).Name + (won ? ", was successful." : ", was held off.") +
           "\r" + game.Current().Name + " lost " + losses(battle.Attacker.Lost) + ", and defender lost " +
           losses(battle.Defender.Lost) + ".\r";
}

/// True when the attack has eliminated the defender.
bool Attack(GameState& game, Random& random, Route route, std::string& body) {
    Territory& from = game.TerritoryAt(route.From);
    Battle battle = BeginBattle(game, route.To, from.Stationed);
    from.Stationed = {TroopsLeftBehind, 0};
    const bool won = Fight(game, random, battle);
    body += BattleLines(game, battle, won);
    if (!won) {
        return false;
    }
    Capture(game, route.To, battle.Attacker.Force);
    if (!CheckDead(game, battle.Defender.Player)) {
        return false;
    }
    body += NowDeadText(battle.Defender.Player) + "\r";
    return true;
}

}  // namespace

void StrikeByComputer(GameState& game, std::string& body) {
    if (!game.Current().HasNuke) {
        return;
    }
    for (int t = 0; t < NumTerritories; ++t) {
        const Territory& target = game.TerritoryAt(t);
        if (IsEnemy(game, t) && target.Stationed.Troops >= TroopsWorthABomb) {
            const Units losses = DropBomb(game, t);
            body += PlayerAndName(game, target.Owner) + "'s, " + std::string(target.Name) +
                    " was nuked and lost " + std::to_string(losses.Troops) + " troops and " +
                    std::to_string(losses.Tanks) + " tanks.\r";
            return;
        }
    }
}

bool AttackByComputer(GameState& game, Random& random, int quota, std::string& body) {
    for (int attacks = 0; attacks < quota; ++attacks) {
        const auto route = ChooseAttack(game);
        if (!route) {
            return false;
        }
        if (Attack(game, random, *route, body) && game.DeadPlayers == game.NumPlayers - 1) {
            return true;
        }
    }
    return false;
}

}  // namespace vorlund
