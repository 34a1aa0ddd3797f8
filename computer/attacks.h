// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "state/game_state.h"
#include "state/random.h"

namespace vorlund {

inline constexpr std::int16_t TroopsWorthABomb = 20;
inline constexpr std::int16_t TroopsThatNeverAttack = 3;  ///< so many or fewer stay at home
inline constexpr int AttackMargin = 4;  ///< the attacker's strength must exceed by more than it
inline constexpr std::int16_t TroopsLeftBehind = 2;

/// Drops the current player's bomb, if it holds one, on the first enemy territory with at least 20 troops,
/// and appends a line on it to `body`. Without such a target the bomb is kept.
void StrikeByComputer(GameState& game, std::string& body);

/// Makes up to `quota` attacks of the current player, each with the whole garrison of the first territory
/// that is strong enough against a neighbour; two new troops stay behind. Appends two lines on each to
/// `body`. True when an attack has killed the last opponent; the attacks end there.
bool AttackByComputer(GameState& game, Random& random, int quota, std::string& body);

}  // namespace vorlund
