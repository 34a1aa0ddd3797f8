// SPDX-License-Identifier: MIT
#include "ui/game_screens.h"

#include <utility>

#include "computer/computer_turn.h"
#include "turn/victory.h"
#include "ui/parts/message_box.h"
#include "ui/windows/frm3.h"
#include "ui/windows/frmAttack.h"
#include "ui/windows/frmBuy.h"
#include "ui/windows/frmReport.h"
#include "ui/windows/frmSave.h"
#include "ui/windows/frmSelect.h"
#include "ui/windows/frmSell.h"
#include "ui/windows/frmStatus.h"
#include "ui/windows/frmTransport.h"
#include "ui/windows/frmUpgrade.h"

namespace vorlund {

GameScreens::GameScreens(GameState& game, Random& random, const SavedGamesFolder& saves, Sounds& sounds,
                         std::function<void()> end)
    : game_(game),
      random_(random),
      saves_(saves),
      sounds_(sounds),
      end_(std::move(end)),
      turn_(game_, random_, *this, [this] { ComputerTurn(game_, random_, *this); }) {}

GameScreens::~GameScreens() = default;

void GameScreens::OpenBoard() {
    report_ = std::make_unique<frmReport>(*this);
    board_ = std::make_unique<frm3>(game_, *this);
    lastReported_ = game_;
    board_->Open();
}

void GameScreens::CloseEverything() {
    CloseDialogs();
    selection_.CloseOutright();
    if (board_ != nullptr) {
        report_->CloseOutright();
        board_->CloseOutright();
    }
}

void GameScreens::SelectTerritories() {
    selection_.Present([this] {
        auto selection = std::make_unique<frmSelect>(*board_, game_, random_, *this);
        selection->PlaceBelow(*board_);
        return selection;
    });
}

void GameScreens::BeginFirstTurn() {
    selection_.CloseOutright();
    turn_.OpenFirstTurn();
}

void GameScreens::RunCommand(Command command) {
    if (command == Command::EndTurn) {
        turn_.EndTurn();
        return;
    }
    SetCommands(CommandSet::None());
    dialogs_[static_cast<std::size_t>(command)].Present([this, command] {
        auto dialog = MakeDialog(command);
        dialog->PlaceBelow(*board_);
        return dialog;
    });
}

std::unique_ptr<CommandDialog> GameScreens::MakeDialog(Command command) {
    switch (command) {
        case Command::Buy:
            return std::make_unique<frmBuy>(*this, game_);
        case Command::Sell:
            return std::make_unique<frmSell>(*this, game_);
        case Command::Transport:
            return std::make_unique<frmTransport>(*this, game_);
        case Command::Attack:
            return std::make_unique<frmAttack>(*this, game_, random_, sounds_);
        case Command::Upgrade:
            return std::make_unique<frmUpgrade>(*this, game_);
        case Command::Status:
            return std::make_unique<frmStatus>(*this, game_, board_->imgSet(game_.CurrentPlayer));
        case Command::Save:
            return std::make_unique<frmSave>(*this, game_, saves_);
        case Command::EndTurn:
            break;
    }
    Q_UNREACHABLE();
}

bool GameScreens::ReportClosed() {
    const bool stays = turn_.ReportClosed();
    if (!stays) {
        board_->ShowChanges({});
        board_->activateWindow();
    }
    return stays;
}

BoardWindow& GameScreens::Board() {
    return *board_;
}

void GameScreens::RestoreCommands() {
    if (game_.GameOver || game_.Current().IsDead) {
        CloseDialogs();
    }
    SetCommands(AvailableCommands(game_));
    if (!report_->isVisible()) {
        board_->activateWindow();
    }
}

void GameScreens::EndWithoutWinner() {
    NobodyWins(*this);
}

void GameScreens::RefreshMap() {
    board_->RefreshMap();
}

void GameScreens::SetCommands(CommandSet available) {
    board_->SetCommands(available);
}

void GameScreens::SetBoardTitle(const std::string& title) {
    board_->SetBoardTitle(title);
}

void GameScreens::ShowGameOver(const std::string& verdict) {
    board_->ShowGameOver(verdict);
}

void GameScreens::CloseDialogs() {
    for (OwnedWindow<CommandDialog>& dialog : dialogs_) {
        dialog.CloseOutright();
    }
}

void GameScreens::ShowActionReport(const Report& report) {
    PresentReport(report, nullptr, nullptr);
}

void GameScreens::ShowReport(const Report& report, std::optional<int> picturePlayer) {
    PresentReport(report, picturePlayer ? &board_->imgSet(*picturePlayer) : nullptr, board_.get());
}

void GameScreens::PresentReport(const Report& report, const Picture* picture, QWidget* owner) {
    if (!report_->isVisible()) {
        report_->PlaceBelow(*board_);
    }
    board_->ShowChanges(ChangesBetween(lastReported_, game_));
    lastReported_ = game_;
    report_->ShowReport(report, picture, owner);
}

void GameScreens::CloseReport() {
    board_->ShowChanges({});
    report_->hide();
}

void GameScreens::Announce(const std::string& text) {
    Exclaim(report_->isVisible() ? static_cast<QWidget*>(report_.get()) : board_.get(), text);
}

}  // namespace vorlund
