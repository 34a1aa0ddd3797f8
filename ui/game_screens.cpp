#include "ui/game_screens.h"

#include "ui/parts/message_box.h"
#include "ui/program.h"
#include "ui/windows/frm3.h"
#include "ui/windows/frmAttack.h"
#include "ui/windows/frmBuy.h"
#include "ui/windows/frmReport.h"
#include "ui/windows/frmSave.h"
#include "ui/windows/frmSell.h"
#include "ui/windows/frmStatus.h"
#include "ui/windows/frmTransport.h"
#include "ui/windows/frmUpgrade.h"

namespace vorlund {

GameScreens::GameScreens(Program& program) : program_(program) {}

GameScreens::~GameScreens() = default;

void GameScreens::OpenBoard() {
    report_ = std::make_unique<frmReport>(program_);
    board_ = std::make_unique<frm3>(program_);
    board_->Open();
}

void GameScreens::OpenDialog(Command command) {
    SetCommands(CommandSet::None());
    QPointer<CommandDialog>& dialog = dialogs_[static_cast<std::size_t>(command)];
    // One that has been closed may not be gone yet.
    if (dialog.isNull() || !dialog->isVisible()) {
        dialog = MakeDialog(command);
    }
    dialog->Present();
}

CommandDialog* GameScreens::MakeDialog(Command command) {
    switch (command) {
        case Command::Buy:
            return new frmBuy(program_);
        case Command::Sell:
            return new frmSell(program_);
        case Command::Transport:
            return new frmTransport(program_);
        case Command::Attack:
            return new frmAttack(program_);
        case Command::Upgrade:
            return new frmUpgrade(program_);
        case Command::Status:
            return new frmStatus(program_);
        case Command::Save:
            return new frmSave(program_);
        case Command::EndTurn:
            break;
    }
    Q_UNREACHABLE();
}

void GameScreens::RestoreCommands() {
    const GameState& game = program_.game();
    if (game.GameOver || game.Current().IsDead) {
        CloseDialogs();
    }
    SetCommands(AvailableCommands(game));
}

void GameScreens::ShowActionReport(const Report& report) {
    report_->ShowIt(report, nullptr, nullptr);
}

void GameScreens::CloseEverything() {
    CloseDialogs();
    if (report_ != nullptr) {
        report_->CloseOutright();
    }
    if (board_ != nullptr) {
        board_->CloseSelection();
        board_->CloseOutright();
    }
}

void GameScreens::RefreshMap() {
    board_->RefreshMap();
}

void GameScreens::SetCommands(CommandSet available) {
    board_->SetCommands(available);
}

void GameScreens::SetBoardTitle(const std::string& title) {
    board_->setWindowTitle(Displayed(title));
}

void GameScreens::ShowGameOver() {
    board_->ShowGameOver();
}

void GameScreens::CloseDialogs() {
    for (const QPointer<CommandDialog>& dialog : dialogs_) {
        if (!dialog.isNull()) {
            dialog->CloseOutright();
        }
    }
}

void GameScreens::ShowReport(const Report& report, std::optional<int> picturePlayer) {
    report_->ShowIt(report, picturePlayer ? &board_->imgSet(*picturePlayer) : nullptr, board_.get());
}

void GameScreens::CloseReport() {
    report_->hide();
}

void GameScreens::Announce(const std::string& text) {
    Exclaim(report_->isVisible() ? static_cast<QWidget*>(report_.get()) : board_.get(), text);
}

}  // namespace vorlund
