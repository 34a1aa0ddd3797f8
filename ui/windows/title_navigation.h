// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// Where the screens before a game lead to.
class TitleNavigation {
public:
    virtual ~TitleNavigation() = default;

    /// From the title to the new-game screen.
    virtual void PlayGame() = 0;

    /// From the title, which is hidden, to the load screen.
    virtual void LoadGame() = 0;

    /// From the load screen back to the title as it was left.
    virtual void BackToTitle() = 0;

    /// To the board, on the game as it stands: its players have been named, or it has been loaded.
    virtual void OpenBoard() = 0;

    /// Ends the program: every window closes without asking anything.
    virtual void End() = 0;
};

}  // namespace vorlund
