// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "actions/order.h"
#include "state/game_state.h"
#include "state/random.h"
#include "turn/commands.h"
#include "turn/report.h"

namespace vorlund {

inline constexpr int EvenFaces = 12;         ///< of a round's die, when neither side is ahead
inline constexpr int DefenderLosesUpTo = 5;  ///< on that die; the attacker loses above it
inline constexpr int DefenseLead = 2;        ///< what a defense adds to the faces
inline constexpr int HitsPerTank = 3;

/// One side of a battle.
struct Side {
    int Player = 0;    ///< index
    Units Force;       ///< what still stands
    int TankHits = 0;  ///< hits on tanks since the last one was destroyed, 0 to 2
    Units Lost;
};

/// One attack while it is fought, on a copy of the forces: Fight writes what comes of it into the game. The
/// attacking force has left its territory and stands in none.
struct Battle {
    int Target = 0;   ///< territory index
    int WarDiff = 0;  ///< -3 to 5; each step up takes from the attacker's odds
    Side Attacker;
    Side Defender;
};

/// The battle of the current player for territory index `target`, which another player holds, with `force`.
/// `WarDiff` is how many Warfare levels the defender is ahead, and 2 more where a defense stands.
Battle BeginBattle(const GameState& game, int target, const Units& force);

/// One round, one draw over 12 + WarDiff: up to 5 the defender loses a unit, above it the attacker does.
/// Troops fall first, and a tank falls at the third hit. Both sides must have a unit left.
void BattleRound(Random& random, Battle& battle);

/// Fights round after round until a side has no unit left; true when the attacker has won. A force without
/// units loses, even against an empty territory. The losses come off the target and both players' totals; the
/// territory does not change hands here.
bool Fight(GameState& game, Random& random, Battle& battle);

/// Why the attack command is not enabled for the current player: no attack is left.
WhyNot WhyNoAttack(const GameState& game);

/// "You have 2 attacks left this turn." for the current player.
std::string AttacksLeftText(const GameState& game);

/// From where the current player can attack, and where to from the one that is entered as `from` or else from
/// any; none without an attack left. See Sources and Destinations.
TerritorySet AttackSources(const GameState& game);
TerritorySet AttackDestinations(const GameState& game, std::string_view from);

/// The most troops or tanks that an attack could take; see MostToSend.
Most MostToAttack(const GameState& game, const OrderEntries& entries, Goods goods);

/// The current player's attack, fought to its end: the survivors take the target over or the force is lost,
/// and an attacking territory left empty is given up. A beep when there is WhyNoAttack, a refusal for
/// entries that make no legal attack, otherwise the report of the battle. Reseeds `random` unless it beeps.
std::variant<Beep, Refusal, Report> Attck(GameState& game, Random& random, const OrderEntries& entries);

}  // namespace vorlund
