// SPDX-License-Identifier: MIT
#pragma once

#include "state/game_state.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The status screen of the current player.
class frmStatus final : public CommandDialog {
    Q_OBJECT

public:
    /// `marker` is the current player's and must outlive the window.
    frmStatus(DialogHost& host, const GameState& game, const Picture& marker);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vorlund
