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

/// A game under way: its turn cycle, and its windows, which are the board, the selection screen, the dialogs
/// and the report. What is handed in must outlive it.
class GameScreens final : public Screens, public GameNavigation, public DialogHost {
public:
    /// `end` ends the program.
    GameScreens(GameState& game, Random& random, const SavedGamesFolder& saves, Sounds& sounds,
                std::function<void()> end);
    ~GameScreens() override;
    GameScreens(const GameScreens&) = delete;
    GameScreens& operator=(const GameScreens&) = delete;

    /// Opens the board, for a new game or a loaded one.
    void OpenBoard();

    /// Closes every window of the game without asking anything.
    void CloseEverything();

    void SelectTerritories() override;
    void SelectionEnded() override;
    void RunCommand(Command command) override;
    bool ReportClosed() override;
    void End() override { end_(); }

    BoardWindow& Board() override;
    void ShowActionReport(const Report& report) override;
    void DialogClosed() override;
    void NobodyIsLeft() override;

    void RefreshMap() override;
    void SetCommands(CommandSet available) override;
    void SetBoardTitle(const std::string& title) override;
    void ShowGameOver() override;
    void CloseDialogs() override;
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override;
    void CloseReport() override;
    void Announce(const std::string& text) override;

private:
    std::unique_ptr<CommandDialog> MakeDialog(Command command);
    void PutReport(const Report& report, const Picture* picture, QWidget* owner);

    GameState& game_;
    Random& random_;
    const SavedGamesFolder& saves_;
    Sounds& sounds_;
    std::function<void()> end_;
    TurnCycle turn_;
    // The other windows belong to the board's, so they are destroyed before it.
    std::unique_ptr<frm3> board_;
    std::unique_ptr<frmReport> report_;
    OwnedWindow<frmSelect> selection_;
    std::array<OwnedWindow<CommandDialog>, NumCommands> dialogs_;
};

}  // namespace vorlund
