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

inline constexpr int EvenFaces = 12;         ///< of the die of a round with equal odds
inline constexpr int DefenderLosesUpTo = 5;  ///< the highest roll by which the defender loses
inline constexpr int DefenseLead = 2;        ///< what a defense adds to the faces
inline constexpr int HitsPerTank = 3;

/// One side of a battle.
struct Side {
    int Player = 0;    ///< index
    Units Force;       ///< what is left of it
    int TankHits = 0;  ///< hits on tanks since the last one was destroyed, 0 to 2
    Units Lost;
};

/// An attack in progress, on copies of the forces: Fight writes the result into the game. The attacking force
/// has already been taken from its territory.
struct Battle {
    int Target = 0;   ///< territory index
    int WarDiff = 0;  ///< -3 to 5; the higher, the lower the attacker's odds
    Side Attacker;
    Side Defender;
};

/// The battle of the current player for territory index `target`, which another player owns, with `force`.
/// `WarDiff` is the defender's lead in Warfare levels, plus 2 if the target has a defense.
Battle BeginBattle(const GameState& game, int target, const Units& force);

/// One round, with a roll of a die of 12 + WarDiff faces: up to 5 the defender takes a hit, above that the
/// attacker. A hit kills a troop; without troops, every third one destroys a tank. Both sides must have
/// units.
void BattleRound(Random& random, Battle& battle);

/// Fights rounds until a side has no units; true when the attacker has won. A force without units loses, even
/// against an empty territory. The losses are subtracted from the target and both players' totals; the owner
/// does not change here.
bool Fight(GameState& game, Random& random, Battle& battle);

/// Why the dialog's Attack command is not available: the current player has no attack left.
WhyNot WhyNoAttack(const GameState& game);

/// How many attacks the current player can still make this turn.
int AttacksToMake(const GameState& game);

/// "You have 2 attacks left this turn." for the current player.
std::string AttacksLeftText(const GameState& game);

/// The Sources and the Destinations of the current player's attacks; none without an attack left.
TerritorySet AttackSources(const GameState& game);
TerritorySet AttackDestinations(const GameState& game, std::string_view from);

/// The most troops or tanks that an attack could take; see MostToSend.
Most MostToAttack(const GameState& game, const OrderEntries& entries, Goods goods);

/// Carries out the current player's attack: the survivors occupy the target or the force is lost, and the
/// attacking territory is abandoned if it is left empty. A beep when WhyNoAttack has a reason, a refusal for
/// entries that are no legal attack, otherwise the report of the battle. Reseeds `random` unless it beeps.
std::variant<Beep, Refusal, Report> Attck(GameState& game, Random& random, const OrderEntries& entries);

}  // namespace vorlund
