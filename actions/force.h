// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/units.h"

namespace vorlund {

/// A force as typed, with fractions and signs.
struct TypedForce {
    double Troops = 0;
    double Tanks = 0;

    bool IsZero() const { return Troops == 0 && Tanks == 0; }
};

/// Reads the fields of a force, an empty one as 0; nothing when one of them holds no number.
std::optional<TypedForce> ReadForce(std::string_view troops, std::string_view tanks);

/// Rounds both counts down to whole numbers; nothing when one of them does not fit 16 bits.
std::optional<Units> CutDown(const TypedForce& force);

/// The lines of a report under "Casualties for `whom`:", and an empty line.
std::string Casualties(const std::string& whom, const Units& lost);

}  // namespace vorlund
