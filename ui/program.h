// SPDX-License-Identifier: MIT
#pragma once

#include "savegame/folder.h"
#include "state/game_state.h"
#include "state/random.h"
#include "ui/game_screens.h"
#include "ui/parts/owned_window.h"
#include "ui/windows/title_navigation.h"

namespace vorlund {

class Sounds;
class frm1;
class frm2;
class frmLoad;
class RulesPage;

/// One run of the program: owns the title, new-game and load screens and the game's screens, and switches
/// between them. The constructor's references must outlive it.
class Program final : public TitleNavigation {
public:
    Program(GameState& game, Random& random, const SavedGamesFolder& saves, Sounds& sounds);
    ~Program() override;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Resets the game and opens the title screen.
    void Start();

    void PlayGame() override;
    void LoadGame() override;
    void BackToTitle() override;
    void OpenBoard() override;
    void End() override;

    /// Opens the rules beside the windows of the game.
    void ShowRules();

private:
    GameState& game_;
    const SavedGamesFolder& saves_;
    Sounds& sounds_;
    GameScreens screens_;
    OwnedWindow<frm1> title_;
    OwnedWindow<frm2> newGame_;
    OwnedWindow<frmLoad> load_;
    OwnedWindow<RulesPage> rules_;
};

}  // namespace vorlund
