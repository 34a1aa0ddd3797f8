// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vorlund {

/// What the quantities of an order count.
enum class Goods { Troops, Tanks, Oil };

/// The largest quantity of some goods that an order could take now. Negative ones are no quantities.
struct Most {
    int Amount = 0;     ///< at most LargestQuantity
    std::string Words;  ///< with what bounds it: "at most 11 with $118", "10 troops in 7"

    bool operator==(const Most&) const = default;
};

inline constexpr int LargestQuantity = 999;  ///< that can be entered in digits

/// The largest quantity for which `accepts` is true, as it is for all smaller ones; 0 if it is for none.
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

/// The most of the `held` troops or tanks in territory index `territory`, of which an order can take
/// `amount`.
Most MostOfUnits(int amount, int held, Goods goods, int territory);

/// The most of an order whose territory has not been entered, or is no place of the player's for it.
Most NoTerritoryYet();

}  // namespace vorlund
