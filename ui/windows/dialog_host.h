// SPDX-License-Identifier: MIT
#pragma once

#include "turn/report.h"
#include "ui/windows/board_window.h"

namespace vorlund {

/// What a command dialog asks of the game's other windows.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    /// The window that dialogs belong to.
    virtual BoardWindow& Board() = 0;

    /// Shows what the dialog's order has come to.
    virtual void ShowActionReport(const Report& report) = 0;

    /// The player closes the dialog: the board's commands come back.
    virtual void DialogClosed() = 0;

    /// The dialog's order has killed the last player: the game ends without a winner.
    virtual void NobodyIsLeft() = 0;
};

}  // namespace vorlund
