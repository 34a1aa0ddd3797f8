// SPDX-License-Identifier: MIT
#include "actions/most.h"

namespace vorlund {

Most MostOfUnits(int amount, int held, Goods goods, int territory) {
    const std::string bound = amount < held ? "at most " + std::to_string(amount) + " of " : "";
    const std::string unit = goods == Goods::Troops ? "troop" : "tank";
    return {amount, bound + std::to_string(held) + " " + unit + (held == 1 ? "" : "s") + " in " +
                        std::to_string(territory + 1)};
}

Most NoTerritoryYet() {
    return {0, "Enter a territory of yours first."};
}

}  // namespace vorlund
