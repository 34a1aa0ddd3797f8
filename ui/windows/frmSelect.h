// SPDX-License-Identifier: MIT
#pragma once

#include "setup/selection.h"
#include "ui/parts/screen.h"

namespace vorlund {

class BoardWindow;
class GameNavigation;

/// The selection screen of a new game's opening round: each human player types the number of a territory.
class frmSelect final : public Screen {
    Q_OBJECT

public:
    frmSelect(BoardWindow& board, GameState& game, Random& random, GameNavigation& navigation);

protected:
    bool CloseRequested() override;

private:
    void Entr();

    BoardWindow& board_;
    GameNavigation& navigation_;
    Selection selection_;
    TextLabel* lbl1_;
    Field* txtNum_;
};

}  // namespace vorlund
