// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "state/game_state.h"

namespace vorlund {

/// Who holds territory index `territory` with what, in one line: "7 Midwest USA: Anna (Player 1), 12 troops,
/// 3 tanks, factory".
QString ShortDescription(const GameState& game, int territory);

/// All that can be known of a territory, in several lines: what ShortDescription says, its oil field and
/// value, and its neighbours with their numbers.
QString FullDescription(const GameState& game, int territory);

}  // namespace vorlund
