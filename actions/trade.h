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

/// The texts of the fields of the buy and the sell dialog. An empty one means 0.
struct TradeEntries {
    std::string Territory;  ///< number 1 to 42; ignored when only oil is traded
    std::string Troops;
    std::string Tanks;
    std::string Oil;  ///< barrels
};

/// The refusal of entries that are no numbers, trade nothing, or lead out of the 16-bit range.
inline constexpr const char* NoTransactionText = "The data you entered will not make a transaction.";

/// The headline of the reports on buying and selling.
inline constexpr const char* TransactionHeadline = "Details on current transaction:";

// The steps that Buy and Sell share. Each calls them in its own order, because it checks in another one.

/// The differences between buying and selling.
struct TradeTerms {
    const char* Verb;      ///< "buy"
    const char* PastVerb;  ///< "bought"
    int Direction;         ///< 1 when the player receives goods, -1 when the player gives them
    UnitPrices Prices;
};

/// Quantities as typed, with fractions and signs.
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

/// The new values of the fields that a trade changes.
struct TradeResult {
    Units Total;
    Units Stationed;
    std::int16_t Money = 0;
    std::int16_t Oil = 0;
};

/// A trade that has been carried out: its lines in the report, and its sum in dollars.
struct TradeBooking {
    std::string Lines;
    int Total = 0;
};

/// Reads the three quantities; nothing when one of them is no number.
std::optional<TradeQuantities> ReadQuantities(const TradeEntries& entries);

/// Rounds the quantities down to whole numbers, then sets negative ones and oil below one lot to 0; nothing
/// when one does not fit 16 bits.
std::optional<TradeOrder> CutAndCorrect(const TradeQuantities& quantities);

/// The count of `goods` in an order.
std::int16_t& CountOf(TradeOrder& order, Goods goods);

/// The quantities entered, without that of `goods`; an empty order when one of them is no quantity.
TradeOrder OtherQuantities(TradeEntries entries, Goods goods);

/// The largest quantity of `goods`, oil in whole lots, for which `accepts` is true while `order` has it.
template <class Accepts>
int LargestTraded(TradeOrder& order, Goods goods, Accepts accepts) {
    const int amount = LargestAccepted([&](int quantity) {
        CountOf(order, goods) = static_cast<std::int16_t>(quantity);
        return accepts();
    });
    return goods == Goods::Oil ? amount - amount % BarrelsPerDollar : amount;
}

/// The kind of units that refusals about the territory name: "Troops" if any are traded, otherwise "Tanks".
template <typename Force>
std::string KindOf(const Force& force) {
    return force.Troops != 0 ? "Troops" : "Tanks";
}

/// The index of the territory in which units are traded, or a refusal that calls them `kind`.
std::variant<Refusal, int> UnitTerritory(const TradeTerms& terms, const std::string& kind,
                                         const TradeEntries& entries);

/// The result of an order of the current player with its units in territory index `territory`, or in one that
/// is not chosen yet and has room. Nothing when a field would leave the 16-bit range.
std::optional<TradeResult> ResultOf(const GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                    std::optional<int> territory);

/// Carries out the order for the current player, with the units in territory index `territory` (any one when
/// there are none) and oil in whole lots. Nothing, and no change, when ResultOf gives nothing.
std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                 int territory);

}  // namespace vorlund
