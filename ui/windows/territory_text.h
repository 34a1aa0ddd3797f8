// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "state/territory_set.h"

namespace vorlund {

/// Number, name, owner, forces and buildings of territory index `territory`, the income that it pays before
/// the Economy level is applied, its oil field, and the numbers, names and owners of the neighbours, in
/// several lines.
QString FullDescription(const GameState& game, int territory);

/// FullDescription as one line, for screen readers.
QString DescriptionInOneLine(const GameState& game, int territory);

/// The numbers of the territories in `candidates`, those that an order could take, or how many they are:
/// "Possible: 2, 7".
QString CandidatesText(const TerritorySet& candidates);

}  // namespace vorlund
