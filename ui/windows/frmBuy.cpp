// SPDX-License-Identifier: MIT
#include "ui/windows/frmBuy.h"

#include "actions/buy.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmBuy::frmBuy(DialogHost& host, GameState& game)
    : TradeDialog(host, game,
                  {u"frmBuy"_s, u"Vorlund - Buy"_s, QSize(391, 138), 128, 168, 298,
                   "Territory # with Factory:", BuyingPrices, u"Buy"_s, BuyTerritories, MostToBuy},
                  MoneyLine(game)),
      game_(game) {}

void frmBuy::Trade() {
    std::visit([this](const auto& outcome) { ShowOutcome(outcome); }, Buy(game_, Entries()));
}

}  // namespace vorlund
