// SPDX-License-Identifier: MIT
#pragma once

#include "actions/order.h"
#include "state/game_state.h"
#include "state/random.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

class Sounds;

/// The attack dialog: battle in the upper half, nuclear strike in the lower half.
class frmAttack final : public CommandDialog {
    Q_OBJECT

public:
    frmAttack(DialogHost& host, GameState& game, Random& random, Sounds& sounds);

private:
    void AddBattleHalf();
    void AddStrikeHalf();
    OrderEntries Entries() const;
    void Attack();
    void LaunchNuke();

    GameState& game_;
    Random& random_;
    Sounds& sounds_;
    Field* txtC1_ = nullptr;
    Field* txtC2_ = nullptr;
    Field* txtTroops_ = nullptr;
    Field* txtTanks_ = nullptr;
    Field* txtN_ = nullptr;
    CommandLabel* lblAttack_ = nullptr;
    CommandLabel* lblStrike_ = nullptr;
};

}  // namespace vorlund
