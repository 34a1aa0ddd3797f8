// SPDX-License-Identifier: MIT
#include "actions/buy.h"

#include <cmath>

#include "state/prices.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

constexpr TradeTerms Buying{"buy", "bought", 1, BuyingPrices};

/// For checking whether the money suffices. A little more than a third, so that whole lots of 3 barrels are
/// not rounded down; what is paid is a dollar for each lot.
constexpr double DollarsPerBarrel = 0.3334;

/// The price of the order; nothing when it does not fit 16 bits.
std::optional<std::int16_t> PriceOf(const TradeOrder& order) {
    return CutToInt16(1.0 * BuyingPrices.Troop * order.Force.Troops +
                      1.0 * BuyingPrices.Tank * order.Force.Tanks + std::floor(order.Oil * DollarsPerBarrel));
}

/// The dollars that the current player lacks for an order, 0 or less if the money suffices; nothing when its
/// price does not fit 16 bits.
std::optional<int> Lacking(const GameState& game, const TradeOrder& order) {
    const auto price = PriceOf(order);
    return price ? std::optional(*price - game.Current().Money) : std::nullopt;
}

/// The territory for the units, or why they cannot be bought for it.
std::variant<Refusal, int> Placement(const GameState& game, const TypedForce& force,
                                     const TradeEntries& entries) {
    auto choice = UnitTerritory(Buying, KindOf(force), entries);
    if (const int* t = std::get_if<int>(&choice); t != nullptr && !Has(BuyTerritories(game), *t)) {
        return Refusal{"To buy " + KindOf(force) + " the territory must have a factory and be owned by you."};
    }
    return choice;
}

}  // namespace

std::string MoneyLine(const GameState& game) {
    return "You have $" + std::to_string(game.Current().Money) + " to spend.";
}

TerritorySet BuyTerritories(const GameState& game) {
    return TerritoriesWhere(
        [&](int t) { return Owns(game, game.CurrentPlayer, t) && game.TerritoryAt(t).HasFactory; });
}

Most MostToBuy(const GameState& game, const TradeEntries& entries, Goods goods) {
    auto t = ReadTerritory(entries.Territory, TerritoryRounding::IndexInRange);
    t = t && Has(BuyTerritories(game), *t) ? t : std::nullopt;
    TradeOrder order = OtherQuantities(entries, goods);
    const int left = -Lacking(game, order).value_or(0);
    const int amount = LargestTraded(order, goods, [&] {
        const auto lacking = Lacking(game, order);
        return lacking && *lacking <= 0 && ResultOf(game, Buying, order, t);
    });
    return {amount, "at most " + std::to_string(amount) + " with $" + std::to_string(left)};
}

std::variant<Refusal, Report> Buy(GameState& game, const TradeEntries& entries) {
    const auto quantities = ReadQuantities(entries);
    if (!quantities) {
        return Refusal{NoTransactionText};
    }
    // The territory is checked before fractions are cut off: half a troop needs a factory as well.
    int territory = 0;
    if (!quantities->Force.IsZero()) {
        const auto placement = Placement(game, quantities->Force, entries);
        if (const auto* refusal = std::get_if<Refusal>(&placement)) {
            return *refusal;
        }
        territory = std::get<int>(placement);
    }
    const auto order = CutAndCorrect(*quantities);
    if (!order || order->IsEmpty()) {
        return Refusal{NoTransactionText};
    }
    const auto lacking = Lacking(game, *order);
    if (!lacking) {
        return Refusal{NoTransactionText};
    }
    if (*lacking > 0) {
        return Refusal{
            "The cost of what you are buying exceeds your amount of money.\r"
            "You need $" +
            std::to_string(*lacking) + " more to complete that transaction."};
    }
    const auto booking = Book(game, Buying, *order, territory);
    if (!booking) {
        return Refusal{NoTransactionText};
    }
    return Report{"Vorlund - Buy", TransactionHeadline,
                  booking->Lines + "        Total spent: $" + std::to_string(booking->Total)};
}

}  // namespace vorlund
