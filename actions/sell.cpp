// SPDX-License-Identifier: MIT
#include "actions/sell.h"

#include "state/ownership.h"
#include "state/prices.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr TradeTerms Selling{"sell", "sold", -1, SellingPrices};

// Where the units would come from, or why they cannot.
std::variant<Refusal, int> SourceOf(const GameState& game, const Units& force, const TradeEntries& entries) {
    auto choice = UnitTerritory(Selling, KindOf(force), entries);
    const int* t = std::get_if<int>(&choice);
    if (t == nullptr) {
        return choice;
    }
    if (!Owns(game, game.CurrentPlayer, *t)) {
        return Refusal{"To sell " + KindOf(force) + " the territory must be owned by you."};
    }
    const Units& stationed = game.TerritoryAt(*t).Stationed;
    if (force.Troops > stationed.Troops || force.Tanks > stationed.Tanks) {
        return Refusal{std::string("You cannot sell more ") +
                       (force.Troops > stationed.Troops ? "Troops" : "Tanks") +
                       " than you have in a territory."};
    }
    return choice;
}

}  // namespace

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
    if (order->Oil != 0 && order->Oil > game.Current().Oil) {
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
