#include "ui/windows/frmSell.h"

#include "turn/victory.h"
#include "ui/program.h"

namespace vorlund {

frmSell::frmSell(Program& program)
    : TradeDialog(program,
                  {QStringLiteral("frmSell"), QStringLiteral("Vorlund - Sell"), QSize(348, 135), 76, 130, 246,
                   "Territory #:", "Number of Troops($7):", "Number of Tanks($30):", "Barrels of Oil($1/3):",
                   QStringLiteral("Sell")},
                  "You may sell oil or Troops/Tanks in any of your territories.") {}

void frmSell::Trade() {
    std::visit([this](const auto& outcome) { Settle(outcome); }, Sell(program().game(), Entries()));
}

void frmSell::Settle(const NoSurvivor&) {
    NobodyWins(program().game(), program().screens());
}

}  // namespace vorlund
