// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "state/game_state.h"

namespace vorlund {

/// The texts of the status screen.
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
    std::string Nuclear;  ///< two lines: the level, and whether there is a bomb
    std::string AttacksMoves;
    std::string Upkeep;  ///< an estimate, see DescribeStatus
};

/// The status of the current player. The estimate of the upkeep has its own formula, which differs from
/// RunUpkeep:
/// $(5 x value + 10) for each territory, raised by the Economy level, less the upkeep of troops and
/// factories.
StatusLines DescribeStatus(const GameState& game);

}  // namespace vorlund
