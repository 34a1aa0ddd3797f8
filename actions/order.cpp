// SPDX-License-Identifier: MIT
#include "actions/order.h"

#include <optional>

#include "actions/force.h"
#include "state/typed_number.h"
#include "state/world.h"

namespace vorlund {
namespace {

std::optional<TypedForce> ReadForceOf(const OrderEntries& entries, const OrderTerms& terms) {
    auto force = ReadForce(entries.Troops, entries.Tanks);
    if (force && terms.RoundsTanks) {
        const auto tanks = RoundToInt16(force->Tanks);
        if (!tanks) {
            return std::nullopt;
        }
        force->Tanks = *tanks;
    }
    return force;
}

std::optional<Order> ReadRoute(const GameState& game, const OrderTerms& terms, const OrderEntries& entries,
                               const TypedForce& typed) {
    const auto from = ReadTerritory(entries.From, TerritoryRounding::Index);
    const auto to = ReadTerritory(entries.To, TerritoryRounding::Index);
    const auto force = CutDown(typed);
    if (!from || !to || !force || !CanReach(game, terms.IsAttack, *from, *to)) {
        return std::nullopt;
    }
    return Order{*from, *to, *force};
}

/// Why a force cannot go from territory index `from` to `to`, which may be open, or nothing.
std::optional<Refusal> RefuseForce(const GameState& game, const OrderTerms& terms, const Units& force,
                                   int from, std::optional<int> to) {
    const Units& held = game.TerritoryAt(from).Stationed;
    const std::string more = terms.MoreThan;
    const std::string negative = terms.Negative;
    if (force.Troops > held.Troops) {
        return Refusal{more + "troops than you have."};
    }
    if (force.Tanks > held.Tanks) {
        return Refusal{more + "tanks than you have."};
    }
    if (force.Troops < 0) {
        return Refusal{negative + "troops."};
    }
    if (force.Tanks < 0) {
        return Refusal{negative + "tanks."};
    }
    const bool joins = to && !terms.IsAttack;
    if (joins && !Sum(game.TerritoryAt(*to).Stationed, force)) {
        return Refusal{terms.Invalid};
    }
    return std::nullopt;
}

TerritorySet DestinationsFrom(const GameState& game, const OrderTerms& terms, int from) {
    return TerritoriesWhere([&](int to) { return CanReach(game, terms.IsAttack, from, to); });
}

}  // namespace

TerritorySet Sources(const GameState& game, const OrderTerms& terms) {
    return TerritoriesWhere([&](int t) {
        return !game.TerritoryAt(t).Stationed.IsEmpty() && DestinationsFrom(game, terms, t).any();
    });
}

TerritorySet Destinations(const GameState& game, const OrderTerms& terms, std::string_view from) {
    const TerritorySet sources = Sources(game, terms);
    const auto source = ReadTerritory(from, TerritoryRounding::Index);
    if (source && Owns(game, game.CurrentPlayer, *source)) {
        return Has(sources, *source) ? DestinationsFrom(game, terms, *source) : TerritorySet();
    }
    TerritorySet all;
    for (int t = 0; t < NumTerritories; ++t) {
        all |= Has(sources, t) ? DestinationsFrom(game, terms, t) : TerritorySet();
    }
    return all;
}

Most MostToSend(const GameState& game, const OrderTerms& terms, const OrderEntries& entries, Goods goods) {
    const auto from = ReadTerritory(entries.From, TerritoryRounding::Index);
    if (!from || !Owns(game, game.CurrentPlayer, *from)) {
        return NoTerritoryYet();
    }
    auto to = ReadTerritory(entries.To, TerritoryRounding::Index);
    to = to && CanReach(game, terms.IsAttack, *from, *to) ? to : std::nullopt;
    const bool troops = goods == Goods::Troops;
    const int amount = LargestAccepted([&](int quantity) {
        const auto count = static_cast<std::int16_t>(quantity);
        return !RefuseForce(game, terms, troops ? Units{count, 0} : Units{0, count}, *from, to);
    });
    const Units& held = game.TerritoryAt(*from).Stationed;
    return MostOfUnits(amount, troops ? held.Troops : held.Tanks, goods, *from);
}

std::variant<Refusal, Order> ReadOrder(const GameState& game, const OrderTerms& terms,
                                       const OrderEntries& entries) {
    if (entries.From.empty()) {
        return Refusal{terms.NoFrom};
    }
    if (entries.To.empty()) {
        return Refusal{terms.NoTo};
    }
    const auto force = ReadForceOf(entries, terms);
    if (!force) {
        return Refusal{terms.Invalid};
    }
    if (force->IsZero()) {
        return Refusal{"Enter a number for either troops or tanks."};
    }
    const auto order = ReadRoute(game, terms, entries, *force);
    if (!order) {
        return Refusal{terms.Invalid};
    }
    if (const auto refusal = RefuseForce(game, terms, order->Force, order->From, order->To)) {
        return *refusal;
    }
    return *order;
}

}  // namespace vorlund
