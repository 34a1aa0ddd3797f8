// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/game_state.h"

namespace vorlund {

/// Player index `player` in texts: "Player 3".
inline std::string PlayerWords(int player) {
    return "Player " + std::to_string(player + 1);
}

/// "Player 3, Cleo".
inline std::string PlayerAndName(const GameState& game, int player) {
    return PlayerWords(player) + ", " + game.PlayerAt(player).Name;
}

}  // namespace vorlund
