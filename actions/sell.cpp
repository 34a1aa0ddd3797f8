#include "actions/sell.h"

#include "state/ownership.h"
#include "state/prices.h"
#include "turn/victory.h"

namespace vorlund {
namespace {

constexpr TradeTerms Selling{"sell", "sold", -1, TroopSalePrice, TankSalePrice};

// Where units of this kind would come from, or why they cannot.
std::variant<Refusal, int> SourceOf(const GameState& game, const UnitKind& kind, const TradeEntries& entries,
                                    int amount) {
    auto choice = UnitTerritory(Selling, kind, entries);
    const int* t = std::get_if<int>(&choice);
    if (t == nullptr) {
        return choice;
    }
    if (!Owns(game, game.CurrentPlayer, *t)) {
        return Refusal{std::string("To sell ") + kind.Name + " the territory must be owned by you."};
    }
    if (amount > game.TerritoryAt(*t).*kind.Stationed) {
        return Refusal{std::string("You cannot sell more ") + kind.Name + " than you have in a territory."};
    }
    return *t;
}

bool IsEmpty(const Territory& territory) {
    return territory.Troops == 0 && territory.Tanks == 0;
}

}  // namespace

std::variant<Refusal, Report, NoSurvivor> Sell(GameState& game, const TradeEntries& entries) {
    const auto quantities = ReadQuantities(entries);
    const auto order = quantities ? CutAndCorrect(*quantities) : std::nullopt;
    if (!order) {
        return Refusal{NoTransactionText};
    }
    int territory = 0;
    bool sellsUnits = false;
    for (const UnitKind& kind : UnitKinds) {
        const int amount = *order.*kind.Ordered;
        if (amount != 0) {
            const auto source = SourceOf(game, kind, entries, amount);
            if (const auto* refusal = std::get_if<Refusal>(&source)) {
                return *refusal;
            }
            territory = std::get<int>(source);
            sellsUnits = true;
        }
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
    if (sellsUnits && IsEmpty(game.TerritoryAt(territory))) {
        Abandon(game, territory);
        if (CheckDead(game, game.CurrentPlayer)) {
            if (game.DeadPlayers == game.NumPlayers) {
                return NoSurvivor{};
            }
            report.Body += KilledYourselfText;
        }
    }
    return report;
}

}  // namespace vorlund
