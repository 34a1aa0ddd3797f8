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

/// The board's title in the current player's turn: "Vorlund - Anna's turn".
std::string TurnTitle(const GameState& game);

/// Who is next in the order of play after player index `player` and alive; `player` when nobody else is.
std::int16_t NextAlive(const GameState& game, int player);

/// Moves play from player to player: what End Turn does, and what closing a report leads to.
class TurnCycle {
public:
    /// `computerTurn` plays the whole turn of the current player, a computer. It is handed in because it
    /// stands on a higher floor than the turn itself.
    TurnCycle(GameState& game, Random& random, Screens& screens, std::function<void()> computerTurn);

    /// Ends the current player's turn and starts the next living player's: the upkeep of a human with its
    /// report, or the whole turn of a computer. Announces the winner instead when only one player is left
    /// alive.
    void EndTurn();

    /// What a request to close the report screen leads to. True when the screen must stay open because it
    /// shows a new report now. Otherwise it closes, and the commands of a human player whose turn it is come
    /// back.
    bool ReportClosed();

    /// Starts the turn of the current player, a human, once the territories have been selected: moves,
    /// attacks, board title, upkeep and its report, which bears no picture this once.
    void OpenFirstTurn();

private:
    /// What EndTurn does once the report of the turn is out of the way.
    void PassTurn();

    /// Moves and attacks of the current player's turn, and their name in the board's title.
    void BeginTurn();
    void RunUpkeepOfCurrentPlayer(bool withPicture);

    GameState& game_;
    Random& random_;
    Screens& screens_;
    std::function<void()> computerTurn_;
};

}  // namespace vorlund
