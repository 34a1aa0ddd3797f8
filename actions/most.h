// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// What a quantity of an order counts.
enum class Goods { Troops, Tanks, Oil };

/// The largest quantity of some goods that an order would accept now; 0 also when none is accepted.
struct Most {
    int Amount = 0;     ///< at most LargestQuantity
    std::string Words;  ///< with what limits it: "at most 11 with $118", "10 troops in 7"

    bool operator==(const Most&) const = default;
};

inline constexpr int LargestQuantity = 999;  ///< of three digits

/// The largest quantity for which `accepts` is true; it must be true for all smaller ones. 0 if there is
/// none.
template <class Accepts>
int LargestAccepted(Accepts accepts) {
    int accepted = 0;
    int refused = LargestQuantity + 1;
    while (refused - accepted > 1) {
        const int middle = (accepted + refused) / 2;
        (accepts(middle) ? accepted : refused) = middle;
    }
    return accepted;
}

/// The Most of an order that accepts `amount` of the `held` troops or tanks in territory index `territory`.
Most MostOfUnits(int amount, int held, Goods goods, int territory);

/// The Most of an order whose territory has not been entered or is none that the order accepts.
Most NoTerritoryYet();

}  // namespace vorlund
