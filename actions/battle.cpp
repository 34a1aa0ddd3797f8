#include "actions/battle.h"

#include <optional>

#include "state/int16.h"
#include "state/ownership.h"
#include "state/typed_number.h"
#include "state/world.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

struct Order {
    int From;
    int To;
    std::int16_t Troops;
    std::int16_t Tanks;
};

void LoseUnit(std::int16_t& troops, std::int16_t& tanks, Player& owner, int& tankHits, int& troopLosses,
              int& tankLosses) {
    if (troops != 0) {
        Add(troops, -1);
        Add(owner.Troops, -1);
        ++troopLosses;
    } else if (++tankHits == HitsPerTank) {
        tankHits = 0;
        Add(tanks, -1);
        Add(owner.Tanks, -1);
        ++tankLosses;
    }
}

Refusal InvalidData() {
    return {"You entered invalid attack data...\rCheck the validity of your attack and try again."};
}

std::variant<Refusal, Order> ReadOrder(const GameState& game, const AttackEntries& entries) {
    if (entries.Attacker.empty()) {
        return Refusal{"Enter a number 1-42 for the attacking territory."};
    }
    if (entries.Defender.empty()) {
        return Refusal{"Enter a number 1-42 for the defending territory."};
    }
    const std::optional<double> troopsTyped = ReadQuantity(entries.Troops);
    const std::optional<double> tanksTyped = ReadQuantity(entries.Tanks);
    if (!troopsTyped || !tanksTyped) {
        return InvalidData();
    }
    if (*troopsTyped == 0 && *tanksTyped == 0) {
        return Refusal{"Enter a number for either troops or tanks."};
    }
    const auto from = ReadTerritory(entries.Attacker, TerritoryRounding::Index);
    const auto to = ReadTerritory(entries.Defender, TerritoryRounding::Index);
    const auto troops = CutToInt16(*troopsTyped);
    const auto tanks = CutToInt16(*tanksTyped);
    if (!from || !to || !CanReach(game, true, *from, *to) || !troops || !tanks) {
        return InvalidData();
    }
    return Order{*from, *to, *troops, *tanks};
}

std::optional<Refusal> CheckForce(const Territory& from, const Order& order) {
    if (order.Troops > from.Troops) {
        return Refusal{"You are attacking with more troops than you have."};
    }
    if (order.Tanks > from.Tanks) {
        return Refusal{"You are attacking with more tanks than you have."};
    }
    if (order.Troops < 0) {
        return Refusal{"You cannot attack with negative troops."};
    }
    if (order.Tanks < 0) {
        return Refusal{"You cannot attack with negative tanks."};
    }
    return std::nullopt;
}

std::string Casualties(const GameState& game, const char* side, int player, int troops, int tanks) {
    return std::string("Casualties for ") + side + " (Player " + std::to_string(player + 1) + ", " +
           game.PlayerAt(player).Name + "):\r        Troops: " + std::to_string(troops) +
           "\r        Tanks: " + std::to_string(tanks) + "\r\r";
}

Report BattleReport(const GameState& game, const Battle& battle, bool won) {
    Report report;
    report.Title = "Vorlund - Battle Results";
    report.Headline = won ? "The battle was successful... you now have control of " +
                                std::string(game.TerritoryAt(battle.Target).Name) + "."
                          : std::string("The battle was unsuccessful... the enemy held off your attack.");
    report.Body =
        Casualties(game, "attacker", game.CurrentPlayer, battle.AttackerTroopLosses,
                   battle.AttackerTankLosses) +
        Casualties(game, "defender", battle.Defender, battle.DefenderTroopLosses, battle.DefenderTankLosses);
    return report;
}

Report CarryOut(GameState& game, Random& random, const Order& order) {
    Territory& from = game.TerritoryAt(order.From);
    Add(from.Troops, -order.Troops);
    Add(from.Tanks, -order.Tanks);
    Add(game.Current().AttacksLeft, -1);

    Battle battle = BeginBattle(game, order.To, order.Troops, order.Tanks);
    const bool won = Fight(game, random, battle);
    Report report = BattleReport(game, battle, won);
    if (won) {
        Capture(game, order.To, battle.Troops, battle.Tanks);
        if (CheckDead(game, battle.Defender)) {
            report.Body += NowDeadText(battle.Defender);
        }
    }
    if (from.Troops == 0 && from.Tanks == 0) {
        Abandon(game, order.From);
        if (CheckDead(game, game.CurrentPlayer)) {
            report.Body += KilledYourselfText;
        }
    }
    return report;
}

}  // namespace

Battle BeginBattle(const GameState& game, int target, std::int16_t troops, std::int16_t tanks) {
    const Territory& territory = game.TerritoryAt(target);
    Battle battle;
    battle.Target = target;
    battle.Defender = territory.Owner;
    battle.WarDiff = game.PlayerAt(territory.Owner).WarfareLevel - game.Current().WarfareLevel +
                     (territory.HasDefense ? DefenseLead : 0);
    battle.Troops = troops;
    battle.Tanks = tanks;
    return battle;
}

void BattleRound(GameState& game, Random& random, Battle& battle) {
    if (random.Draw(EvenFaces + battle.WarDiff) > DefenderLosesUpTo) {
        LoseUnit(battle.Troops, battle.Tanks, game.Current(), battle.AttackerTankHits,
                 battle.AttackerTroopLosses, battle.AttackerTankLosses);
    } else {
        Territory& target = game.TerritoryAt(battle.Target);
        LoseUnit(target.Troops, target.Tanks, game.PlayerAt(battle.Defender), battle.DefenderTankHits,
                 battle.DefenderTroopLosses, battle.DefenderTankLosses);
    }
}

bool Fight(GameState& game, Random& random, Battle& battle) {
    const Territory& target = game.TerritoryAt(battle.Target);
    while (battle.Troops != 0 || battle.Tanks != 0) {
        if (target.Troops == 0 && target.Tanks == 0) {
            return true;
        }
        BattleRound(game, random, battle);
    }
    return false;
}

bool CanAttack(const GameState& game) {
    const std::int16_t left = game.Current().AttacksLeft;
    return left == 1 || left == 2;
}

std::string AttacksLeftText(const GameState& game) {
    const int left = CanAttack(game) ? game.Current().AttacksLeft : 0;
    return "You have " + std::to_string(left) + (left == 1 ? " attack" : " attacks") + " left this turn.";
}

std::variant<Beep, Refusal, Report> Attck(GameState& game, Random& random, bool attackEnabled,
                                          const AttackEntries& entries) {
    if (!attackEnabled) {
        return Beep{};
    }
    random.Reseed();
    const std::variant<Refusal, Order> read = ReadOrder(game, entries);
    if (const auto* refusal = std::get_if<Refusal>(&read)) {
        return *refusal;
    }
    const auto& order = std::get<Order>(read);
    if (const auto refusal = CheckForce(game.TerritoryAt(order.From), order)) {
        return *refusal;
    }
    return CarryOut(game, random, order);
}

}  // namespace vorlund
