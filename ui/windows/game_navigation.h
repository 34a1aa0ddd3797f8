// SPDX-License-Identifier: MIT
#pragma once

#include "turn/commands.h"

namespace vorlund {

/// The transitions that the board, the territory selection and the report can trigger.
class GameNavigation {
public:
    virtual ~GameNavigation() = default;

    /// Opens the territory selection of a new game.
    virtual void SelectTerritories() = 0;

    /// Closes the selection, when every player has a territory, and begins the first turn.
    virtual void BeginFirstTurn() = 0;

    /// Runs an available command: ends the turn, or opens the command's dialog or raises it.
    virtual void RunCommand(Command command) = 0;

    /// Decides what closing the report means. True if the window must stay open, with the next report in it.
    virtual bool ReportClosed() = 0;

    /// Ends the program and closes every window outright.
    virtual void End() = 0;
};

}  // namespace vorlund
