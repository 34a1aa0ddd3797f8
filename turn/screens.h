// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "turn/commands.h"
#include "turn/report.h"

namespace vorlund {

/// The interface by which turns drive the screens. The program implements it in `ui`, the tests with a
/// recorder.
class Screens {
public:
    virtual ~Screens() = default;

    /// Redraws every territory of the board.
    virtual void RefreshMap() = 0;

    /// Enables exactly these commands of the board.
    virtual void SetCommands(CommandSet available) = 0;

    virtual void SetBoardTitle(const std::string& title) = 0;

    /// Shows the game-over picture over the map, with `verdict`, which says who has won.
    virtual void ShowGameOver(const std::string& verdict) = 0;

    /// Closes every open command dialog without enabling the board's commands again.
    virtual void CloseDialogs() = 0;

    /// Shows `report` in the report screen, in front of the board, and returns at once. The marker of
    /// `picturePlayer`, if any, is shown with it.
    virtual void ShowReport(const Report& report, std::optional<int> picturePlayer) = 0;

    /// Hides the report screen without TurnCycle::ReportClosed.
    virtual void CloseReport() = 0;

    /// Shows `text` in an exclamation box and returns when it has been closed. Until then every other window
    /// ignores close requests.
    virtual void Announce(const std::string& text) = 0;
};

}  // namespace vorlund
