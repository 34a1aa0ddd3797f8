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

std::optional<Order> ReadWay(const GameState& game, const OrderTerms& terms, const OrderEntries& entries,
                             const TypedForce& typed) {
    const auto from = ReadTerritory(entries.From, TerritoryRounding::Index);
    const auto to = ReadTerritory(entries.To, TerritoryRounding::Index);
    const auto force = CutDown(typed);
    if (!from || !to || !force || !CanReach(game, terms.IsAttack, *from, *to)) {
        return std::nullopt;
    }
    return Order{*from, *to, *force};
}

std::optional<Refusal> RefuseForce(const Units& force, const Units& held, const OrderTerms& terms) {
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
    return std::nullopt;
}

}  // namespace

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
    const auto order = ReadWay(game, terms, entries, *force);
    if (!order) {
        return Refusal{terms.Invalid};
    }
    if (const auto refusal = RefuseForce(order->Force, game.TerritoryAt(order->From).Stationed, terms)) {
        return *refusal;
    }
    return *order;
}

}  // namespace vorlund
