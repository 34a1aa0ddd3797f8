#pragma once

#include <memory>

#include "savegame/folder.h"
#include "state/game_state.h"
#include "state/random.h"
#include "turn/turn_cycle.h"
#include "ui/game_screens.h"
#include "ui/machine/sounds.h"
#include "ui/windows/frm1.h"

namespace vorlund {

class frm2;
class frmLoad;

/// One run of the program: it owns the one game, what the game needs of the machine, and the screens, and
/// leads from the title screen to a game and from there to the end.
class Program {
public:
    /// `random` is the game's chance, `saves` the folder of the saved games, and `sounds` plays the
    /// recordings.
    Program(std::unique_ptr<Random> random, SavedGamesFolder saves, Sounds& sounds);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Resets the game and opens the title screen.
    void Start();

    /// Closes the title screen and opens the new-game screen.
    void PlayGame();

    /// Hides the title screen and opens the load screen.
    void LoadGame();

    /// Shows the title screen again as it was left.
    void BackToTitle();

    /// Opens the board on the game as it stands, new or loaded, and closes the title screen.
    void OpenBoard();

    /// Ends the program: every window closes without asking anything.
    void End();

    GameState& game() { return game_; }
    Random& random() { return *random_; }
    SavedGamesFolder& saves() { return saves_; }
    Sounds& sound() { return sounds_; }
    GameScreens& screens() { return screens_; }
    TurnCycle& turn() { return turn_; }

private:
    GameState game_;
    std::unique_ptr<Random> random_;
    SavedGamesFolder saves_;
    Sounds& sounds_;
    GameScreens screens_;
    TurnCycle turn_;
    std::unique_ptr<frm1> title_;
    std::unique_ptr<frm2> newGame_;
    std::unique_ptr<frmLoad> load_;
};

}  // namespace vorlund
