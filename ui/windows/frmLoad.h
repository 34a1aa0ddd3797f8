// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <optional>
#include <string>

#include "savegame/folder.h"
#include "state/game_state.h"
#include "ui/parts/screen.h"

namespace vorlund {

class TitleNavigation;

/// The load screen: the saved games, to be resumed or deleted.
class frmLoad final : public Screen {
    Q_OBJECT

public:
    frmLoad(GameState& game, const SavedGamesFolder& saves, TitleNavigation& navigation);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool CloseRequested() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The three commands: load (0), delete (1), cancel (2).
    void CallLoad(int index);
    void Load();
    void Delete();
    void FillList();
    std::optional<std::string> Selected() const;

    GameState& game_;
    const SavedGamesFolder& saves_;
    TitleNavigation& navigation_;
    Placed<QListWidget>* flb1_;
    bool DoubleClicked_ = false;
};

}  // namespace vorlund
