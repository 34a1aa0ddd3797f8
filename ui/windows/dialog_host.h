// SPDX-License-Identifier: MIT
#pragma once

#include "turn/report.h"
#include "ui/windows/board_window.h"

namespace vorlund {

/// What a command dialog needs of the game's other windows.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    /// The parent window of the dialogs.
    virtual BoardWindow& Board() = 0;

    /// Shows the report of the dialog's order.
    virtual void ShowActionReport(const Report& report) = 0;

    /// Enables the commands that are available; called when the player closes the dialog.
    virtual void RestoreCommands() = 0;

    /// Ends the game without a winner, after the dialog's order has killed the last player.
    virtual void EndWithoutWinner() = 0;
};

}  // namespace vorlund
