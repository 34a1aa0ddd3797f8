// SPDX-License-Identifier: MIT
#include "ui/program.h"

#include <QCoreApplication>

#include "state/world.h"
#include "ui/windows/frm1.h"
#include "ui/windows/frm2.h"
#include "ui/windows/frmLoad.h"
#include "ui/windows/rules_page.h"

namespace vorlund {

Program::Program(GameState& game, Random& random, const SavedGamesFolder& saves, Sounds& sounds)
    : game_(game), saves_(saves), sounds_(sounds), screens_(game, random, saves, sounds, [this] { End(); }) {}

Program::~Program() = default;

void Program::Start() {
    ResetGame(game_);
    BackToTitle();
}

void Program::PlayGame() {
    newGame_.Present([this] { return std::make_unique<frm2>(game_, *this); });
    title_.CloseOutright();
}

void Program::LoadGame() {
    load_.Present([this] { return std::make_unique<frmLoad>(game_, saves_, *this); });
    title_.Hide();
}

void Program::BackToTitle() {
    title_.Present([this] { return std::make_unique<frm1>(sounds_, *this); });
}

void Program::OpenBoard() {
    screens_.OpenBoard();
    title_.CloseOutright();
    newGame_.CloseOutright();
    load_.CloseOutright();
}

void Program::ShowRules() {
    rules_.Present([] { return std::make_unique<RulesPage>(); });
}

void Program::End() {
    screens_.CloseEverything();
    title_.CloseOutright();
    newGame_.CloseOutright();
    load_.CloseOutright();
    rules_.CloseOutright();
    QCoreApplication::exit(0);
}

}  // namespace vorlund
