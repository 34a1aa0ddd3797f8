// SPDX-License-Identifier: MIT
#include "actions/sell.h"

#include "state/ownership.h"
#include "state/prices.h"
#include "state/typed_number.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr TradeTerms Selling{"sell", "sold", -1, SellingPrices};

/// Why the current player cannot sell these units from territory index `t`, or nothing.
std::optional<Refusal> RefuseUnits(const GameState& game, int t, const Units& force) {
    if (!Owns(game, game.CurrentPlayer, t)) {
        return Refusal{"To sell " + KindOf(force) + " the territory must be owned by you."};
    }
    const Units& stationed = game.TerritoryAt(t).Stationed;
    if (force.Troops > stationed.Troops || force.Tanks > stationed.Tanks) {
        return Refusal{std::string("You cannot sell more ") +
                       (force.Troops > stationed.Troops ? "Troops" : "Tanks") +
                       " than you have in a territory."};
    }
    return std::nullopt;
}

bool HasOil(const GameState& game, std::int16_t barrels) {
    return barrels == 0 || barrels <= game.Current().Oil;
}

/// The territory of the units, or why they cannot be sold from it.
std::variant<Refusal, int> SourceOf(const GameState& game, const Units& force, const TradeEntries& entries) {
    auto choice = UnitTerritory(Selling, KindOf(force), entries);
    if (const int* t = std::get_if<int>(&choice); t != nullptr) {
        if (const auto refusal = RefuseUnits(game, *t, force)) {
            return *refusal;
        }
    }
    return choice;
}

}  // namespace

TerritorySet SellTerritories(const GameState& game) {
    return TerritoriesWhere([&](int t) {
        return !RefuseUnits(game, t, {1, 0}) || !RefuseUnits(game, t, {0, 1});
    });
}

Most MostToSell(const GameState& game, const TradeEntries& entries, Goods goods) {
    auto t = ReadTerritory(entries.Territory, TerritoryRounding::IndexInRange);
    t = t && Has(SellTerritories(game), *t) ? t : std::nullopt;
    if (!t && goods != Goods::Oil) {
        return NoTerritoryYet();
    }
    TradeOrder order = OtherQuantities(entries, goods);
    const auto accepts = [&] {
        return (order.Force.IsEmpty() || (t && !RefuseUnits(game, *t, order.Force))) &&
               HasOil(game, order.Oil) && ResultOf(game, Selling, order, t);
    };
    order = accepts() ? order : TradeOrder{};
    const int amount = LargestTraded(order, goods, accepts);
    if (goods == Goods::Oil) {
        return {amount, std::to_string(amount) + (amount == 1 ? " barrel" : " barrels")};
    }
    const Units& held = game.TerritoryAt(*t).Stationed;
    return MostOfUnits(amount, goods == Goods::Troops ? held.Troops : held.Tanks, goods, *t);
}

std::variant<Refusal, Report, NoSurvivor> Sell(GameState& game, const TradeEntries& entries) {
    const auto quantities = ReadQuantities(entries);
    const auto order = quantities ? CutAndCorrect(*quantities) : std::nullopt;
    if (!order) {
        return Refusal{NoTransactionText};
    }
    int territory = 0;
    const bool sellsUnits = !order->Force.IsEmpty();
    if (sellsUnits) {
        const auto source = SourceOf(game, order->Force, entries);
        if (const auto* refusal = std::get_if<Refusal>(&source)) {
            return *refusal;
        }
        territory = std::get<int>(source);
    }
    if (!HasOil(game, order->Oil)) {
        return Refusal{"You cannot sell more oil barrels than you have."};
    }
    const auto booking = order->IsEmpty() ? std::nullopt : Book(game, Selling, *order, territory);
    if (!booking) {
        return Refusal{NoTransactionText};
    }
    Report report{"Vorlund - Sell", TransactionHeadline,
                  booking->Lines + "        Total money gained: $" + std::to_string(booking->Total) + "\r\r"};
    if (sellsUnits && game.TerritoryAt(territory).Stationed.IsEmpty()) {
        Abandon(game, territory);
        if (CheckDead(game, game.CurrentPlayer)) {
            if (game.DeadPlayers == game.NumPlayers) {
                game.GameOver = true;
                return NoSurvivor{};
            }
            report.Body += KilledYourselfText;
        }
    }
    return report;
}

}  // namespace vorlund
