// SPDX-License-Identifier: MIT
#include "actions/trade.h"

#include <algorithm>

#include "state/int16.h"
#include "state/prices.h"
#include "state/typed_number.h"

namespace vorlund {

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
    const auto notNegative = [](std::int16_t count) { return std::max(count, std::int16_t{0}); };
    return TradeOrder{{notNegative(force->Troops), notNegative(force->Tanks)},
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

std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order, int t) {
    Player& player = game.Current();
    Territory& territory = game.TerritoryAt(t);
    TradeBooking booking;
    const auto enter = [&](int amount, const char* goods, int dollars, const std::string& where) {
        if (amount != 0) {
            booking.Total += dollars;
            booking.Lines += std::string("You ") + terms.PastVerb + " " + std::to_string(amount) + " " +
                             goods + " for $" + std::to_string(dollars) + where + ".\r";
        }
    };
    const std::string place = " in " + std::string(territory.Name);
    const int lots = order.Oil / BarrelsPerDollar;
    const int barrels = lots * BarrelsPerDollar;
    enter(order.Force.Troops, "Troops", terms.Prices.Troop * order.Force.Troops, place);
    enter(order.Force.Tanks, "Tanks", terms.Prices.Tank * order.Force.Tanks, place);
    enter(barrels, "oil barrels", lots, "");
    booking.Lines += barrels != 0 ? "\r" : "";

    const bool buys = terms.Direction > 0;
    const Units force = buys ? order.Force : -order.Force;
    const auto total = Sum(player.Total, force);
    const auto stationed = Sum(territory.Stationed, force);
    const int money = player.Money - terms.Direction * booking.Total;
    const int oil = player.Oil + terms.Direction * barrels;
    if (!total || !stationed || !FitsInt16(money) || !FitsInt16(oil)) {
        return std::nullopt;
    }
    player.Total = *total;
    territory.Stationed = *stationed;
    player.Money = static_cast<std::int16_t>(money);
    player.Oil = static_cast<std::int16_t>(oil);
    return booking;
}

}  // namespace vorlund
