// SPDX-License-Identifier: MIT
#include "ui/windows/frmSell.h"

#include "ui/windows/dialog_host.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmSell::frmSell(DialogHost& host, GameState& game)
    : TradeDialog(host, game,
                  {u"frmSell"_s, u"Vorlund - Sell"_s, QSize(348, 135), 76, 130, 246,
                   "Territory #:", SellingPrices, u"Sell"_s, SellTerritories, MostToSell},
                  "You may sell oil or Troops/Tanks in any of your territories."),
      game_(game) {}

void frmSell::Trade() {
    std::visit([this](const auto& outcome) { ShowOutcome(outcome); }, Sell(game_, Entries()));
}

void frmSell::ShowOutcome(const NoSurvivor&) {
    Host().EndWithoutWinner();
}

}  // namespace vorlund
