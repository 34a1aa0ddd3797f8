// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "turn/commands.h"
#include "turn/report.h"

namespace vorlund {

/// What the turn asks of the screens. The program implements it once; nothing below this line of the house
/// knows how a screen looks.
class Screens {
public:
    virtual ~Screens() = default;

    /// Redraws every territory of the board from the game.
    virtual void RefreshMap() = 0;

    /// Makes exactly these commands of the board available.
    virtual void SetCommands(CommandSet available) = 0;

    virtual void SetBoardTitle(const std::string& title) = 0;

    /// Lays the game-over picture over the map.
    virtual void ShowGameOver() = 0;

    /// Closes every open command dialog outright; none of them gives the commands back.
    virtual void CloseDialogs() = 0;

    /// Shows `report`, replacing whatever the report screen showed, in front of the board and without
    /// blocking. `picturePlayer` is the player whose marker it bears, if any.
    virtual void ShowReport(const Report& report, std::optional<int> picturePlayer) = 0;

    /// Takes the report screen away without asking what closing it means. The next ShowReport writes all of
    /// it anew.
    virtual void CloseReport() = 0;

    /// Shows `text` in an exclamation box and returns when it has been answered. Until then no other window
    /// takes a close request.
    virtual void Announce(const std::string& text) = 0;
};

}  // namespace vorlund
