#pragma once

#include "ui/windows/trade_dialog.h"

namespace vorlund {

/// The buy dialog.
class frmBuy final : public TradeDialog {
    Q_OBJECT

public:
    explicit frmBuy(Program& program);

private:
    void Trade() override;
};

}  // namespace vorlund
