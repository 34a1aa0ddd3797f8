// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// The transitions that the title, new-game and load screens can trigger.
class TitleNavigation {
public:
    virtual ~TitleNavigation() = default;

    /// Replaces the title by the new-game screen.
    virtual void PlayGame() = 0;

    /// Hides the title and opens the load screen.
    virtual void LoadGame() = 0;

    /// Shows the hidden title again.
    virtual void BackToTitle() = 0;

    /// Opens the board on the current game, which has just been set up or loaded, and closes these screens.
    virtual void OpenBoard() = 0;

    /// Ends the program and closes every window outright.
    virtual void End() = 0;
};

}  // namespace vorlund
