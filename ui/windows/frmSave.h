// SPDX-License-Identifier: MIT
#pragma once

#include "savegame/folder.h"
#include "state/game_state.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The save screen: asks for a name and saves the game under it.
class frmSave final : public CommandDialog {
    Q_OBJECT

public:
    frmSave(DialogHost& host, const GameState& game, const SavedGamesFolder& saves);

private:
    void Entr();

    const GameState& game_;
    const SavedGamesFolder& saves_;
    Field* txtSave_;
};

}  // namespace vorlund
