// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "actions/force.h"
#include "actions/most.h"
#include "actions/outcome.h"
#include "state/game_state.h"
#include "state/prices.h"

namespace vorlund {

/// The entries of the buy and the sell dialog, as typed. An empty one counts as 0.
struct TradeEntries {
    std::string Territory;  ///< number 1 to 42; looked at only when units are traded
    std::string Troops;
    std::string Tanks;
    std::string Oil;  ///< barrels
};

/// What both trades say of entries that mean nothing, are no numbers, or lead out of the 16-bit range.
inline constexpr const char* NoTransactionText = "The data you entered will not make a transaction.";

/// The headline of both trades' reports.
inline constexpr const char* TransactionHeadline = "Details on current transaction:";

// What buying and selling share. They read, check and correct their entries in orders of their own.

/// What tells the two trades apart.
struct TradeTerms {
    const char* Verb;      ///< "buy"
    const char* PastVerb;  ///< "bought"
    int Direction;         ///< 1 when goods come to the player, -1 when they go
    UnitPrices Prices;
};

/// Quantities read from entries, fractions and signs included.
struct TradeQuantities {
    TypedForce Force;
    double Oil = 0;
};

/// Quantities to be traded, none of them negative.
struct TradeOrder {
    Units Force;
    std::int16_t Oil = 0;

    bool IsEmpty() const { return Force.IsEmpty() && Oil == 0; }
};

/// What the fields that a trade changes hold after it.
struct TradeResult {
    Units Total;
    Units Stationed;
    std::int16_t Money = 0;
    std::int16_t Oil = 0;
};

/// A trade that has been carried out: its lines in the report, and the dollars that changed hands.
struct TradeBooking {
    std::string Lines;
    int Total = 0;
};

/// Reads the three quantities; nothing when one of them is no number.
std::optional<TradeQuantities> ReadQuantities(const TradeEntries& entries);

/// Cuts the quantities down to whole numbers, then makes negative ones and oil below a lot of 3 barrels 0;
/// nothing when one does not fit 16 bits.
std::optional<TradeOrder> CutAndCorrect(const TradeQuantities& quantities);

/// The count of `goods` in an order.
std::int16_t& CountOf(TradeOrder& order, Goods goods);

/// The quantities that are entered beside that of `goods`; nothing at all when one of them is no quantity.
TradeOrder OtherQuantities(TradeEntries entries, Goods goods);

/// The largest quantity of `goods`, of oil in whole lots, with which `accepts` is true for `order`, in which
/// it is varied.
template <class Accepts>
int LargestTraded(TradeOrder& order, Goods goods, Accepts accepts) {
    const int amount = LargestAccepted([&](int quantity) {
        CountOf(order, goods) = static_cast<std::int16_t>(quantity);
        return accepts();
    });
    return goods == Goods::Oil ? amount - amount % BarrelsPerDollar : amount;
}

/// What texts call the units of a trade whose territory is looked at: troops, if any are traded.
template <typename Force>
std::string KindOf(const Force& force) {
    return force.Troops != 0 ? "Troops" : "Tanks";
}

/// The index of the territory in which units are traded, which texts call `kind`, or why there is none.
std::variant<Refusal, int> UnitTerritory(const TradeTerms& terms, const std::string& kind,
                                         const TradeEntries& entries);

/// What comes of an order of the current player with its units in territory index `territory`, or in one that
/// is not chosen yet and has room. Nothing when a field would leave the 16-bit range.
std::optional<TradeResult> ResultOf(const GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                    std::optional<int> territory);

/// Carries out the whole order for the current player, with the units in territory index `territory` (any one
/// when there are none) and oil at a dollar for 3 barrels, in whole lots. Nothing, and no change,
/// when there is no ResultOf it.
std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                 int territory);

}  // namespace vorlund
