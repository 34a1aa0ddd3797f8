// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <array>
#include <optional>
#include <string>

#include "savegame/folder.h"
#include "state/game_state.h"
#include "ui/parts/screen.h"

namespace vorlund {

class TitleNavigation;

/// The load screen: lists the saved games, resumes or deletes one.
class frmLoad final : public Screen {
    Q_OBJECT

public:
    frmLoad(GameState& game, const SavedGamesFolder& saves, TitleNavigation& navigation);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool HandleCloseRequest() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Runs a command: load (0), delete (1) or cancel (2).
    void CallLoad(int index);
    void Load();
    void Delete();
    void FillList();

    /// Enables Load and Delete if a game is selected.
    void OfferCommands();
    std::optional<std::string> Selected() const;

    GameState& game_;
    const SavedGamesFolder& saves_;
    TitleNavigation& navigation_;
    Placed<QListWidget>* flb1_;
    TextLabel* empty_;
    std::array<CommandLabel*, 3> lblGo_{};
    bool DoubleClicked_ = false;
};

}  // namespace vorlund
