// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "state/game_state.h"
#include "ui/parts/computer_toggle.h"
#include "ui/parts/screen.h"

namespace vorlund {

class TitleNavigation;

/// The new-game screen: first the number of players, then their names and which of them the computer plays.
class frm2 final : public Screen {
    Q_OBJECT

public:
    frm2(GameState& game, TitleNavigation& navigation);

protected:
    bool HandleCloseRequest() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Row {
        TextLabel* lblP;
        Field* txtN;
        ComputerToggle* cmp;
    };

    void AddChoices();
    void AddRow(int number);
    void Cont();
    void ShowNameRows();
    void CheckNames();

    GameState& game_;
    TitleNavigation& navigation_;
    TextLabel* lbl1_;
    std::array<CommandLabel*, 4> choices_{};
    std::array<Row, MaxPlayers> rows_{};
    bool choosing_ = true;  ///< the number of players has not been confirmed yet
};

}  // namespace vorlund
