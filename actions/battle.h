#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "actions/outcome.h"
#include "state/game_state.h"
#include "state/random.h"
#include "turn/report.h"

namespace vorlund {

inline constexpr int EvenFaces = 12;         ///< of a round's die, when neither side is ahead
inline constexpr int DefenderLosesUpTo = 5;  ///< on that die; the attacker loses above it
inline constexpr int DefenseLead = 2;        ///< what a defense adds to the faces
inline constexpr int HitsPerTank = 3;

/// One attack while it is fought. The force has left its territory and stands in none, but counts in its
/// owner's totals until its units fall.
struct Battle {
    int Target = 0;           ///< territory index
    int Defender = 0;         ///< player index
    int WarDiff = 0;          ///< -3 to 5; each step up takes from the attacker's odds
    std::int16_t Troops = 0;  ///< the force
    std::int16_t Tanks = 0;

    // Hits taken by a side's tanks since its last tank was destroyed, 0 to 2
    int AttackerTankHits = 0;
    int DefenderTankHits = 0;

    // Units lost so far
    int AttackerTroopLosses = 0;
    int AttackerTankLosses = 0;
    int DefenderTroopLosses = 0;
    int DefenderTankLosses = 0;
};

/// The battle of the current player for territory index `target`, which another player holds, with a force of
/// `troops` and `tanks`. `WarDiff` is how many Warfare levels the defender is ahead, and 2 more where a
/// defense stands.
Battle BeginBattle(const GameState& game, int target, std::int16_t troops, std::int16_t tanks);

/// One round, one draw over 12 + WarDiff: up to 5 the defender loses a unit, above it the attacker does.
/// Troops fall first, and a tank falls at the third hit. Both sides must have a unit left.
void BattleRound(GameState& game, Random& random, Battle& battle);

/// Fights round after round until a side has no unit left; true when the attacker has won. A force without
/// units loses, even against an empty territory. The territory does not change hands here.
bool Fight(GameState& game, Random& random, Battle& battle);

/// What the player typed into the attack's fields.
struct AttackEntries {
    std::string Attacker;  ///< territory number
    std::string Defender;  ///< territory number
    std::string Troops;
    std::string Tanks;
};

/// True when the current player has attacks left, so that the attack command is enabled.
bool CanAttack(const GameState& game);

/// "You have 2 attacks left this turn." for the current player.
std::string AttacksLeftText(const GameState& game);

/// The current player's attack, fought to its end: the survivors take the target over or the force is lost,
/// and an attacking territory left empty is given up. A beep when the command is not enabled, a refusal for
/// entries that make no legal attack, otherwise the report of the battle. Reseeds `random` unless it beeps.
std::variant<Beep, Refusal, Report> Attck(GameState& game, Random& random, bool attackEnabled,
                                          const AttackEntries& entries);

}  // namespace vorlund
