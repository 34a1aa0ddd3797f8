// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"
#include "state/random.h"
#include "turn/screens.h"

namespace vorlund {

inline constexpr int BombFaces = 5;  ///< one of them brings a bomb
inline constexpr int FirstTurnClaims = 2;
inline constexpr int SecondClaimFacesOfTwo = 3;  ///< in a game of two players, one of them is a second claim
inline constexpr int SecondClaimFacesOfThree = 5;  ///< and in one of three
inline constexpr int ComputerAttacks = 2;          ///< a turn

/// Plays the whole turn of the current player, a living computer player: perhaps a free bomb, a factory if it
/// has none, expansion, reinforcement, its bomb and its attacks. Ends with the turn's report on screen,
/// bearing the player's picture, or with the announcement that this player has won. The units it creates are
/// not added to its totals.
void ComputerTurn(GameState& game, Random& random, Screens& screens);

}  // namespace vorlund
