// SPDX-License-Identifier: MIT
#pragma once

#include "ui/windows/trade_dialog.h"

namespace vorlund {

/// The buy dialog.
class frmBuy final : public TradeDialog {
    Q_OBJECT

public:
    frmBuy(DialogHost& host, GameState& game);

private:
    void Trade() override;

    GameState& game_;
};

}  // namespace vorlund
