// SPDX-License-Identifier: MIT
#include "actions/trade.h"

#include <algorithm>

#include "state/int16.h"
#include "state/prices.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

/// What the parts of an order change hands for.
struct Dollars {
    int Troops;
    int Tanks;
    int Oil;

    int Total() const { return Troops + Tanks + Oil; }
};

int LotsOf(const TradeOrder& order) {
    return order.Oil / BarrelsPerDollar;
}

Dollars DollarsFor(const TradeTerms& terms, const TradeOrder& order) {
    return {terms.Prices.Troop * order.Force.Troops, terms.Prices.Tank * order.Force.Tanks, LotsOf(order)};
}

}  // namespace

std::optional<TradeQuantities> ReadQuantities(const TradeEntries& entries) {
    const auto force = ReadForce(entries.Troops, entries.Tanks);
    const auto oil = ReadQuantity(entries.Oil);
    return force && oil ? std::optional(TradeQuantities{*force, *oil}) : std::nullopt;
}

std::optional<TradeOrder> CutAndCorrect(const TradeQuantities& quantities) {
    const auto force = CutDown(quantities.Force);
    const auto oil = CutToInt16(quantities.Oil);
    if (!force || !oil) {
        return std::nullopt;
    }
    const auto atLeastZero = [](std::int16_t count) { return std::max(count, std::int16_t{0}); };
    return TradeOrder{{atLeastZero(force->Troops), atLeastZero(force->Tanks)},
                      *oil < BarrelsPerDollar ? std::int16_t{0} : *oil};
}

std::variant<Refusal, int> UnitTerritory(const TradeTerms& terms, const std::string& kind,
                                         const TradeEntries& entries) {
    if (!ReadQuantity(entries.Territory)) {
        return Refusal{NoTransactionText};
    }
    const auto t = ReadTerritory(entries.Territory, TerritoryRounding::IndexInRange);
    if (!t) {
        return Refusal{std::string("To ") + terms.Verb + " " + kind +
                       " you need a valid territory number (1-42).\rNo transaction was made."};
    }
    return *t;
}

std::int16_t& CountOf(TradeOrder& order, Goods goods) {
    switch (goods) {
        case Goods::Troops:
            return order.Force.Troops;
        case Goods::Tanks:
            return order.Force.Tanks;
        case Goods::Oil:
            break;
    }
    return order.Oil;
}

TradeOrder OtherQuantities(TradeEntries entries, Goods goods) {
    (goods == Goods::Troops ? entries.Troops : goods == Goods::Tanks ? entries.Tanks : entries.Oil).clear();
    const auto quantities = ReadQuantities(entries);
    const auto order = quantities ? CutAndCorrect(*quantities) : std::nullopt;
    return order.value_or(TradeOrder{});
}

std::optional<TradeResult> ResultOf(const GameState& game, const TradeTerms& terms, const TradeOrder& order,
                                    std::optional<int> t) {
    const Player& player = game.Current();
    const Units force = terms.Direction > 0 ? order.Force : -order.Force;
    const auto total = Sum(player.Total, force);
    const auto stationed = t ? Sum(game.TerritoryAt(*t).Stationed, force) : Units{};
    const int money = player.Money - terms.Direction * DollarsFor(terms, order).Total();
    const int oil = player.Oil + terms.Direction * LotsOf(order) * BarrelsPerDollar;
    if (!total || !stationed || !FitsInt16(money) || !FitsInt16(oil)) {
        return std::nullopt;
    }
    return TradeResult{*total, *stationed, static_cast<std::int16_t>(money), static_cast<std::int16_t>(oil)};
}

std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order, int t) {
    const auto result = ResultOf(game, terms, order, t);
    if (!result) {
        return std::nullopt;
    }
    Player& player = game.Current();
    Territory& territory = game.TerritoryAt(t);
    const Dollars dollars = DollarsFor(terms, order);
    TradeBooking booking{{}, dollars.Total()};
    const auto addLine = [&](int amount, const char* goods, int price, const std::string& where) {
        if (amount != 0) {
            booking.Lines += std::string("You ") + terms.PastVerb + " " + std::to_string(amount) + " " +
                             goods + " for $" + std::to_string(price) + where + ".\r";
        }
    };
    const std::string place = " in " + std::string(territory.Name);
    addLine(order.Force.Troops, "Troops", dollars.Troops, place);
    addLine(order.Force.Tanks, "Tanks", dollars.Tanks, place);
    addLine(LotsOf(order) * BarrelsPerDollar, "oil barrels", dollars.Oil, "");
    booking.Lines += LotsOf(order) != 0 ? "\r" : "";

    player.Total = result->Total;
    territory.Stationed = result->Stationed;
    player.Money = result->Money;
    player.Oil = result->Oil;
    return booking;
}

}  // namespace vorlund
