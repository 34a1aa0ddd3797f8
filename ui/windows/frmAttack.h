#pragma once

#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The attack dialog: a battle in its upper half, a nuclear strike in its lower one.
class frmAttack final : public CommandDialog {
    Q_OBJECT

public:
    explicit frmAttack(Program& program);

private:
    void AddBattleHalf();
    void AddStrikeHalf();
    void Attack();
    void LaunchNuke();

    Field* txtC1_ = nullptr;
    Field* txtC2_ = nullptr;
    Field* txtTroops_ = nullptr;
    Field* txtTanks_ = nullptr;
    Field* txtN_ = nullptr;
    CommandLabel* lblAttack_ = nullptr;
    CommandLabel* lblStrike_ = nullptr;
};

}  // namespace vorlund
