// SPDX-License-Identifier: MIT
#pragma once

#include "turn/commands.h"

namespace vorlund {

/// What the player's acts on the board, the selection screen and the report lead to.
class GameNavigation {
public:
    virtual ~GameNavigation() = default;

    /// The board of a new game is open: its players select their territories.
    virtual void SelectTerritories() = 0;

    /// Everybody has a territory: the first turn begins.
    virtual void SelectionEnded() = 0;

    /// An available command has been given: End Turn, or one whose dialog opens or comes to the front.
    virtual void RunCommand(Command command) = 0;

    /// The player is done with the report. True when its window must stay, because it shows a new report now.
    virtual bool ReportClosed() = 0;

    /// Ends the program: every window closes without asking anything.
    virtual void End() = 0;
};

}  // namespace vorlund
