#include "ui/program.h"

#include <QCoreApplication>
#include <utility>

#include "computer/computer_turn.h"
#include "state/world.h"
#include "ui/windows/frm2.h"
#include "ui/windows/frmLoad.h"

namespace vorlund {

Program::Program(std::unique_ptr<Random> random, SavedGamesFolder saves, Sounds& sounds)
    : random_(std::move(random)),
      saves_(std::move(saves)),
      sounds_(sounds),
      screens_(*this),
      turn_(game_, *random_, screens_, [this] { ComputerTurn(game_, *random_, screens_); }) {}

Program::~Program() = default;

void Program::Start() {
    ResetGame(game_);
    title_ = std::make_unique<frm1>(*this);
    title_->Present();
}

void Program::PlayGame() {
    newGame_ = std::make_unique<frm2>(*this);
    newGame_->Present();
    title_->Leave();
}

void Program::LoadGame() {
    load_ = std::make_unique<frmLoad>(*this);
    load_->Present();
    title_->hide();
}

void Program::BackToTitle() {
    title_->Present();
}

void Program::OpenBoard() {
    screens_.OpenBoard();
    title_->Leave();
}

void Program::End() {
    screens_.CloseEverything();
    for (Screen* window : {static_cast<Screen*>(title_.get()), static_cast<Screen*>(newGame_.get()),
                           static_cast<Screen*>(load_.get())}) {
        if (window != nullptr) {
            window->CloseOutright();
        }
    }
    QCoreApplication::exit(0);
}

}  // namespace vorlund
