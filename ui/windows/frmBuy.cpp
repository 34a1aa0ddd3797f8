// SPDX-License-Identifier: MIT
#include "ui/windows/frmBuy.h"

#include "actions/buy.h"

namespace vorlund {

frmBuy::frmBuy(DialogHost& host, GameState& game)
    : TradeDialog(host,
                  {QStringLiteral("frmBuy"), QStringLiteral("Vorlund - Buy"), QSize(391, 138), 136, 176, 292,
                   "Territory # with Factory:", BuyingPrices, QStringLiteral("Buy")},
                  MoneyLine(game)),
      game_(game) {}

void frmBuy::Trade() {
    std::visit([this](const auto& outcome) { Settle(outcome); }, Buy(game_, Entries()));
}

}  // namespace vorlund
