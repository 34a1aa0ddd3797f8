#include "actions/trade.h"

#include "state/int16.h"
#include "state/prices.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

// Moves an amount into or out of a field; false when it does not fit there any more.
bool Change(std::int16_t& field, int amount) {
    const int changed = field + amount;
    field = ClampInt16(changed);
    return FitsInt16(changed);
}

}  // namespace

std::optional<TradeQuantities> ReadQuantities(const TradeEntries& entries) {
    const auto troops = ReadQuantity(entries.Troops);
    const auto tanks = ReadQuantity(entries.Tanks);
    const auto oil = ReadQuantity(entries.Oil);
    if (!troops || !tanks || !oil) {
        return std::nullopt;
    }
    return TradeQuantities{*troops, *tanks, *oil};
}

std::optional<TradeOrder> CutAndCorrect(const TradeQuantities& quantities) {
    const auto troops = CutToInt16(quantities.Troops);
    const auto tanks = CutToInt16(quantities.Tanks);
    const auto oil = CutToInt16(quantities.Oil);
    if (!troops || !tanks || !oil) {
        return std::nullopt;
    }
    const auto atLeast = [](std::int16_t least, std::int16_t value) {
        return value < least ? std::int16_t{0} : value;
    };
    return TradeOrder{atLeast(0, *troops), atLeast(0, *tanks), atLeast(BarrelsPerDollar, *oil)};
}

std::variant<Refusal, int> UnitTerritory(const TradeTerms& terms, const UnitKind& kind,
                                         const TradeEntries& entries) {
    if (!ReadQuantity(entries.Territory)) {
        return Refusal{NoTransactionText};
    }
    const auto t = ReadTerritory(entries.Territory, TerritoryRounding::IndexInRange);
    if (!t) {
        return Refusal{std::string("To ") + terms.Verb + " " + kind.Name +
                       " you need a valid territory number (1-42).\rNo transaction was made."};
    }
    return *t;
}

std::optional<TradeBooking> Book(GameState& game, const TradeTerms& terms, const TradeOrder& order, int t) {
    Player player = game.Current();
    Territory territory = game.TerritoryAt(t);
    TradeBooking booking;
    bool fits = true;
    const std::string begin = std::string("You ") + terms.PastVerb + " ";
    const auto pay = [&](int dollars) {
        booking.Total += dollars;
        fits = Change(player.Money, -terms.Direction * dollars) && fits;
        return " for $" + std::to_string(dollars);
    };
    for (const UnitKind& kind : UnitKinds) {
        const int amount = order.*kind.Ordered;
        if (amount == 0) {
            continue;
        }
        fits = Change(player.*kind.Total, terms.Direction * amount) && fits;
        fits = Change(territory.*kind.Stationed, terms.Direction * amount) && fits;
        booking.Lines += begin + std::to_string(amount) + " " + kind.Name;
        booking.Lines += pay(terms.*kind.Price * amount) + " in ";
        booking.Lines += std::string(territory.Name) + ".\r";
    }
    if (order.Oil != 0) {
        const int lots = order.Oil / BarrelsPerDollar;
        fits = Change(player.Oil, terms.Direction * lots * BarrelsPerDollar) && fits;
        booking.Lines +=
            begin + std::to_string(lots * BarrelsPerDollar) + " oil barrels" + pay(lots) + ".\r\r";
    }
    if (!fits) {
        return std::nullopt;
    }
    game.Current() = player;
    game.TerritoryAt(t) = territory;
    return booking;
}

}  // namespace vorlund
