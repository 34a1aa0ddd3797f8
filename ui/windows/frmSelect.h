// SPDX-License-Identifier: MIT
#pragma once

#include "setup/selection.h"
#include "ui/parts/screen.h"

namespace vorlund {

class BoardWindow;
class GameNavigation;

/// The territory selection of a new game: each human player enters the number of a territory.
class frmSelect final : public Screen {
    Q_OBJECT

public:
    frmSelect(BoardWindow& board, GameState& game, Random& random, GameNavigation& navigation);

protected:
    bool HandleCloseRequest() override;

private:
    void Entr();

    BoardWindow& board_;
    GameNavigation& navigation_;
    Selection selection_;
    TextLabel* lbl1_;
    Field* txtNum_;
};

}  // namespace vorlund
