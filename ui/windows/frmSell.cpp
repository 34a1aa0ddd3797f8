// SPDX-License-Identifier: MIT
#include "ui/windows/frmSell.h"

#include "ui/windows/dialog_host.h"

namespace vorlund {

frmSell::frmSell(DialogHost& host, GameState& game)
    : TradeDialog(host,
                  {QStringLiteral("frmSell"), QStringLiteral("Vorlund - Sell"), QSize(348, 135), 76, 130, 246,
                   "Territory #:", SellingPrices, QStringLiteral("Sell")},
                  "You may sell oil or Troops/Tanks in any of your territories."),
      game_(game) {}

void frmSell::Trade() {
    std::visit([this](const auto& outcome) { Settle(outcome); }, Sell(game_, Entries()));
}

void frmSell::Settle(const NoSurvivor&) {
    host().NobodyIsLeft();
}

}  // namespace vorlund
