// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "savegame/folder.h"
#include "state/game_state.h"
#include "state/random.h"
#include "turn/screens.h"
#include "turn/turn_cycle.h"
#include "ui/parts/owned_window.h"
#include "ui/windows/command_dialog.h"
#include "ui/windows/dialog_host.h"
#include "ui/windows/game_navigation.h"

namespace vorlund {

class Sounds;
class frm3;
class frmReport;
class frmSelect;

/// A running game: owns its turn cycle and its windows (board, territory selection, dialogs and report) and
/// connects the two. The constructor's references must outlive it.
class GameScreens final : public Screens, public GameNavigation, public DialogHost {
public:
    /// `end` is called when the player ends the program.
    GameScreens(GameState& game, Random& random, const SavedGamesFolder& saves, Sounds& sounds,
                std::function<void()> end);
    ~GameScreens() override;
    GameScreens(const GameScreens&) = delete;
    GameScreens& operator=(const GameScreens&) = delete;

    /// Makes and shows the board, for a new game or a loaded one.
    void OpenBoard();

    /// Closes every window of the game outright, without a question.
    void CloseEverything();

    void SelectTerritories() override;
    void BeginFirstTurn() override;
    void RunCommand(Command command) override;
    bool ReportClosed() override;
    void End() override { end_(); }

    BoardWindow& Board() override;
    void ShowActionReport(const Report& report) override;
    void RestoreCommands() override;
    void EndWithoutWinner() override;

    void RefreshMap() override;
    void SetCommands(CommandSet available) override;
    void SetBoardTitle(const std::string& title) override;
    void ShowGameOver(const std::string& verdict) override;
    void CloseDialogs() override;
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override;
    void CloseReport() override;
    void Announce(const std::string& text) override;

private:
    std::unique_ptr<CommandDialog> MakeDialog(Command command);
    void PresentReport(const Report& report, const Picture* picture, QWidget* owner);

    GameState& game_;
    Random& random_;
    const SavedGamesFolder& saves_;
    Sounds& sounds_;
    std::function<void()> end_;
    TurnCycle turn_;
    GameState lastReported_;  ///< the game when the latest report was shown, at first when the board opened
    // Declared first of the windows: the others are its child windows and must be destroyed before it.
    std::unique_ptr<frm3> board_;
    std::unique_ptr<frmReport> report_;
    OwnedWindow<frmSelect> selection_;
    std::array<OwnedWindow<CommandDialog>, NumCommands> dialogs_;
};

}  // namespace vorlund
