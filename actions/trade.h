#pragma once

#include <string>

namespace vorlund {

/// The entries of the buy and the sell dialog, as typed. An empty one counts as 0.
struct TradeEntries {
    std::string Territory;  ///< number 1 to 42; looked at only when units are traded
    std::string Troops;
    std::string Tanks;
    std::string Oil;  ///< barrels
};

/// Oil is traded at a dollar for this many barrels, and only in such lots.
inline constexpr int BarrelsPerLot = 3;

/// What both trades say of entries that mean nothing, are no numbers, or lead out of the 16-bit range.
inline constexpr const char* NoTransactionText = "The data you entered will not make a transaction.";

/// The headline of both trades' reports.
inline constexpr const char* TransactionHeadline = "Details on current transaction:";

}  // namespace vorlund
