// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"
#include "state/random.h"
#include "turn/screens.h"

namespace vorlund {

inline constexpr int BombFaces = 5;  ///< one of them gives a bomb
inline constexpr int FirstTurnClaims = 2;
inline constexpr int SecondClaimFacesOfTwo = 3;    ///< one of them gives a second claim in a game of two
inline constexpr int SecondClaimFacesOfThree = 5;  ///< and in a game of three
inline constexpr int ComputerAttacks = 2;          ///< a turn

/// Plays the whole turn of the current player, a living computer player: a bomb by chance, a factory if it
/// has none, expansion, reinforcement, the strike and the attacks. Then shows the turn's report with the
/// player's marker, or announces that the player has won. The units it creates are not added to its totals.
void ComputerTurn(GameState& game, Random& random, Screens& screens);

}  // namespace vorlund
