// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "state/game_state.h"

namespace vorlund {

/// Owner, forces and buildings of territory index `territory` in one line: "7 Midwest USA: Anna (Player 1),
/// 12 troops, 3 tanks, factory".
QString ShortDescription(const GameState& game, int territory);

/// What ShortDescription says, and the value, the oil field and the numbers and names of the neighbours, in
/// several lines.
QString FullDescription(const GameState& game, int territory);

}  // namespace vorlund
