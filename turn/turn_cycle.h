// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "state/game_state.h"
#include "state/random.h"
#include "turn/screens.h"

namespace vorlund {

inline constexpr std::int16_t MovesPerTurn = 2;
inline constexpr std::int16_t AttacksPerTurn = 2;

/// The board's title during the current player's turn: "Vorlund - Anna's turn".
std::string TurnTitle(const GameState& game);

/// True when it is the turn of player index `player`, and the game has not ended. One who has just died still
/// has the turn to end.
bool HasTurn(const GameState& game, int player);

/// The next living player in the order of play after player index `player`; `player` when nobody else is
/// alive.
std::int16_t NextAlive(const GameState& game, int player);

/// Passes the turn from player to player, on End Turn and when reports are closed.
class TurnCycle {
public:
    /// `computerTurn` plays the whole turn of the current player, a computer. It is a callable because this
    /// folder must not include `computer`, which stands on a higher floor.
    TurnCycle(GameState& game, Random& random, Screens& screens, std::function<void()> computerTurn);

    /// Ends the current player's turn and starts the next living player's: the upkeep of a human with its
    /// report, or the whole turn of a computer. Announces the winner instead when only one player is left
    /// alive.
    void EndTurn();

    /// Handles a request to close the report screen. In a human's turn that enables the commands again; after
    /// a computer's turn it starts the next player's. True when the screen must stay open because it now
    /// shows the next report.
    bool ReportClosed();

    /// Starts the first turn of a new game, that of the current player, a human: moves, attacks, board title,
    /// and the upkeep with its report, which shows no player's marker.
    void OpenFirstTurn();

private:
    /// EndTurn without hiding the report screen.
    void PassTurn();

    /// Sets the current player's moves and attacks and the board's title.
    void BeginTurn();
    void RunUpkeepOfCurrentPlayer(bool withPicture);

    GameState& game_;
    Random& random_;
    Screens& screens_;
    std::function<void()> computerTurn_;
};

}  // namespace vorlund
