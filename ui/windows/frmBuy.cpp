#include "ui/windows/frmBuy.h"

#include "actions/buy.h"
#include "ui/program.h"

namespace vorlund {

frmBuy::frmBuy(Program& program)
    : TradeDialog(program,
                  {QStringLiteral("frmBuy"), QStringLiteral("Vorlund - Buy"), QSize(391, 138), 136, 176, 292,
                   "Territory # with Factory:", "Number of Troops($10):", "Number of Tanks($40):",
                   "Barrels of Oil($1/3):", QStringLiteral("Buy")},
                  MoneyLine(program.game())) {}

void frmBuy::Trade() {
    std::visit([this](const auto& outcome) { Settle(outcome); }, Buy(program().game(), Entries()));
}

}  // namespace vorlund
