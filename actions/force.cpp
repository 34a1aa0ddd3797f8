// SPDX-License-Identifier: MIT
#include "actions/force.h"

#include "state/typed_number.h"

namespace vorlund {

std::optional<TypedForce> ReadForce(std::string_view troops, std::string_view tanks) {
    const auto typedTroops = ReadQuantity(troops);
    const auto typedTanks = ReadQuantity(tanks);
    return typedTroops && typedTanks ? std::optional(TypedForce{*typedTroops, *typedTanks}) : std::nullopt;
}

std::optional<Units> CutDown(const TypedForce& force) {
    const auto troops = CutToInt16(force.Troops);
    const auto tanks = CutToInt16(force.Tanks);
    return troops && tanks ? std::optional(Units{*troops, *tanks}) : std::nullopt;
}

std::string Casualties(const std::string& whom, const Units& lost) {
    return "Casualties for " + whom + ":\r        Troops: " + std::to_string(lost.Troops) +
           "\r        Tanks: " + std::to_string(lost.Tanks) + "\r\r";
}

}  // namespace vorlund
