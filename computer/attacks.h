// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

inline constexpr std::int16_t TroopsWorthABomb = 20;
inline constexpr std::int16_t TroopsThatNeverAttack =
    3;                                  ///< a territory with so many or fewer does not attack
inline constexpr int AttackMargin = 4;  ///< the attacker must be stronger than the defender by more than this
inline constexpr std::int16_t TroopsLeftBehind = 2;

/// Drops the current player's bomb, if it has one, on the first enemy territory with at least 20 troops and
/// appends a line to `body`. Without such a target the bomb is kept.
void StrikeByComputer(GameState& game, std::string& body);

/// Makes up to `quota` attacks of the current player, each with all units of the first territory that is
/// strong enough against a neighbour; two new troops are stationed in their place. Appends two lines for each
/// to `body`. True, and no further attack, when one has eliminated the last opponent.
bool AttackByComputer(GameState& game, Random& random, int quota, std::string& body);

}  // namespace vorlund
