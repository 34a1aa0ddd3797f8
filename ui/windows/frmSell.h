// SPDX-License-Identifier: MIT
#pragma once

#include "actions/sell.h"
#include "ui/windows/trade_dialog.h"

namespace vorlund {

/// The sell dialog.
class frmSell final : public TradeDialog {
    Q_OBJECT

public:
    frmSell(DialogHost& host, GameState& game);

private:
    void Trade() override;

    using CommandDialog::ShowOutcome;
    void ShowOutcome(const NoSurvivor& end);

    GameState& game_;
};

}  // namespace vorlund
