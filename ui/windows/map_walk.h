// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <optional>

namespace vorlund {

/// The neighbour of territory index `from` whose marker lies nearest to the direction of the arrow key
/// `arrow`, to which it must be less than a right angle; nothing if there is none. Where the way round the
/// map's edge is shorter, the direction is that way's. Arrows lead from every territory to every other, if
/// not to each neighbour at once.
std::optional<int> NeighbourTowards(int from, int arrow);

}  // namespace vorlund
