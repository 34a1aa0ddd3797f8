// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "state/territory_set.h"
#include "ui/parts/screen.h"

namespace vorlund {

/// The board's interface for the dialogs in front of it: the parent window, a map to redraw after an order,
/// and clicks on the map that fill in their territory fields.
class BoardWindow : public Screen {
public:
    using Screen::Screen;

    /// Updates every territory from the game.
    virtual void RefreshMap() = 0;

    /// Makes `field` a target of clicks on the map: a click on a territory enters its number in the territory
    /// field that has, or last had, the focus. Meanwhile the territories that `candidates` returns are lit.
    virtual void AddTerritoryField(Field& field, const std::function<TerritorySet()>& candidates) = 0;
};

}  // namespace vorlund
