#pragma once

#include <QPointer>
#include <array>
#include <memory>

#include "turn/screens.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

class Program;
class frm3;
class frmReport;

/// The screens of a game under way: the board, the dialogs that its commands open, and the report.
class GameScreens final : public Screens {
public:
    explicit GameScreens(Program& program);
    ~GameScreens() override;
    GameScreens(const GameScreens&) = delete;
    GameScreens& operator=(const GameScreens&) = delete;

    /// Opens the board, for a new game or a loaded one.
    void OpenBoard();
    frm3* board() const { return board_.get(); }
    frmReport& report() const { return *report_; }

    /// Takes the commands away and opens the dialog of `command`, or brings it to the front. Not for End
    /// Turn.
    void OpenDialog(Command command);

    /// Gives the board the commands that the current player may use.
    void RestoreCommands();

    /// Shows the report of an action: without a picture and owned by no window.
    void ShowActionReport(const Report& report);

    /// Closes every window of the game without asking anything.
    void CloseEverything();

    void RefreshMap() override;
    void SetCommands(CommandSet available) override;
    void SetBoardTitle(const std::string& title) override;
    void ShowGameOver() override;
    void CloseDialogs() override;
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override;
    void CloseReport() override;
    void Announce(const std::string& text) override;

private:
    CommandDialog* MakeDialog(Command command);

    Program& program_;
    std::unique_ptr<frm3> board_;
    std::unique_ptr<frmReport> report_;
    std::array<QPointer<CommandDialog>, NumCommands> dialogs_;
};

}  // namespace vorlund
