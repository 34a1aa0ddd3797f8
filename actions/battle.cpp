// SPDX-License-Identifier: MIT
#include "actions/battle.h"

#include "actions/force.h"
#include "state/ownership.h"
#include "state/player_words.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr OrderTerms Attacking{
    true,
    false,
    "Enter a number 1-42 for the attacking territory.",
    "Enter a number 1-42 for the defending territory.",
    "You entered invalid attack data...\rCheck the validity of your attack and try again.",
    "You are attacking with more ",
    "You cannot attack with negative "};

void LoseUnit(Side& side) {
    if (side.Force.Troops != 0) {
        --side.Force.Troops;
        ++side.Lost.Troops;
    } else if (++side.TankHits == HitsPerTank) {
        side.TankHits = 0;
        --side.Force.Tanks;
        ++side.Lost.Tanks;
    }
}

std::string CasualtiesOf(const GameState& game, const char* which, const Side& side) {
    return Casualties(std::string(which) + " (" + PlayerAndName(game, side.Player) + ")", side.Lost);
}

Report BattleReport(const GameState& game, const Battle& battle, bool won) {
    return {
        "Vorlund - Battle Results",
        won ? "The battle was successful... you now have control of " +
                  std::string(game.TerritoryAt(battle.Target).Name) + "."
            : std::string("The battle was unsuccessful... the enemy held off your attack."),
        CasualtiesOf(game, "attacker", battle.Attacker) + CasualtiesOf(game, "defender", battle.Defender)};
}

Report CarryOut(GameState& game, Random& random, const Order& order) {
    Territory& from = game.TerritoryAt(order.From);
    Add(from.Stationed, -order.Force);
    Add(game.Current().AttacksLeft, -1);

    Battle battle = BeginBattle(game, order.To, order.Force);
    const bool won = Fight(game, random, battle);
    Report report = BattleReport(game, battle, won);
    if (won) {
        Capture(game, order.To, battle.Attacker.Force);
        if (CheckDead(game, battle.Defender.Player)) {
            report.Body += NowDeadText(battle.Defender.Player);
        }
    }
    if (from.Stationed.IsEmpty()) {
        Abandon(game, order.From);
        if (CheckDead(game, game.CurrentPlayer)) {
            report.Body += KilledYourselfText;
        }
    }
    return report;
}

}  // namespace

Battle BeginBattle(const GameState& game, int target, const Units& force) {
    const Territory& territory = game.TerritoryAt(target);
    Battle battle;
    battle.Target = target;
    battle.WarDiff = game.PlayerAt(territory.Owner).WarfareLevel - game.Current().WarfareLevel +
                     (territory.HasDefense ? DefenseLead : 0);
    battle.Attacker.Player = game.CurrentPlayer;
    battle.Attacker.Force = force;
    battle.Defender.Player = territory.Owner;
    battle.Defender.Force = territory.Stationed;
    return battle;
}

void BattleRound(Random& random, Battle& battle) {
    const bool defenderLoses = random.Draw(EvenFaces + battle.WarDiff) <= DefenderLosesUpTo;
    LoseUnit(defenderLoses ? battle.Defender : battle.Attacker);
}

bool Fight(GameState& game, Random& random, Battle& battle) {
    while (!battle.Attacker.Force.IsEmpty() && !battle.Defender.Force.IsEmpty()) {
        BattleRound(random, battle);
    }
    game.TerritoryAt(battle.Target).Stationed = battle.Defender.Force;
    for (const Side& side : {battle.Attacker, battle.Defender}) {
        Add(game.PlayerAt(side.Player).Total, -side.Lost);
    }
    return !battle.Attacker.Force.IsEmpty();
}

WhyNot WhyNoAttack(const GameState& game) {
    const std::int16_t left = game.Current().AttacksLeft;
    return left == 1 || left == 2 ? std::nullopt : WhyNot("You have no attack left this turn.");
}

int AttacksToMake(const GameState& game) {
    return WhyNoAttack(game) ? 0 : game.Current().AttacksLeft;
}

std::string AttacksLeftText(const GameState& game) {
    const int left = AttacksToMake(game);
    return "You have " + std::to_string(left) + (left == 1 ? " attack" : " attacks") + " left this turn.";
}

TerritorySet AttackSources(const GameState& game) {
    return WhyNoAttack(game) ? TerritorySet() : Sources(game, Attacking);
}

TerritorySet AttackDestinations(const GameState& game, std::string_view from) {
    return WhyNoAttack(game) ? TerritorySet() : Destinations(game, Attacking, from);
}

Most MostToAttack(const GameState& game, const OrderEntries& entries, Goods goods) {
    const WhyNot whyNot = WhyNoAttack(game);
    return whyNot ? Most{0, *whyNot} : MostToSend(game, Attacking, entries, goods);
}

std::variant<Beep, Refusal, Report> Attck(GameState& game, Random& random, const OrderEntries& entries) {
    if (WhyNoAttack(game)) {
        return Beep{};
    }
    random.Reseed();
    const auto order = ReadOrder(game, Attacking, entries);
    if (const auto* refusal = std::get_if<Refusal>(&order)) {
        return *refusal;
    }
    return CarryOut(game, random, std::get<Order>(order));
}

}  // namespace vorlund
