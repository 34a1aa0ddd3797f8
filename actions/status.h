// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/game_state.h"

namespace vorlund {

/// The values of the status screen.
struct StatusLines {
    std::string Title;  ///< of the window
    std::string Name;
    std::string Money;
    std::string Oil;
    std::string Troops;
    std::string Tanks;
    std::string Factories;
    std::string Debt;
    std::string Economy;
    std::string Warfare;
    std::string Nuclear;  ///< two lines: the level, and how the bomb stands
    std::string AttacksMoves;
    std::string Upkeep;  ///< an estimate, see DescribeStatus
};

/// How the current player stands. The estimate of the next upkeep has a formula of its own: $(5 x value + 10)
/// a territory, raised by the Economy level, less the upkeep of troops and factories; it is not
/// what the upkeep will book.
StatusLines DescribeStatus(const GameState& game);

}  // namespace vorlund
