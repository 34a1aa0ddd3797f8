// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

#include "state/territory_set.h"

namespace vorlund {

/// Number, name, owner, forces and buildings of territory index `territory`, the income that it pays before
/// the Economy level is applied, its oil field, and the numbers, names and owners of the neighbours, in
/// several lines.
QString FullDescription(const GameState& game, int territory);

/// FullDescription as one line, for screen readers.
QString DescriptionInOneLine(const GameState& game, int territory);

/// What a screen reader says of a field for a territory that an order could take from `candidates`: the
/// territory index `entered` as DescriptionInOneLine does, and whether it is one of them; or else the numbers
/// of the candidates, or how many they are: "Possible: 2, 7".
QString DescribeEntry(const GameState& game, std::optional<int> entered, const TerritorySet& candidates);

}  // namespace vorlund
