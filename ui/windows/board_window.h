// SPDX-License-Identifier: MIT
#pragma once

#include "ui/parts/screen.h"

namespace vorlund {

/// The board as the windows over it know it: they belong to it, their orders change its map, and clicks on
/// the map type into their fields.
class BoardWindow : public Screen {
public:
    using Screen::Screen;

    /// Redraws every territory from the game.
    virtual void RefreshMap() = 0;

    /// A click on a territory types its number into `field` when it is the field for territories that has, or
    /// last had, the keyboard.
    virtual void TypeInto(Field& field) = 0;
};

}  // namespace vorlund
