// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <array>

#include "state/game_state.h"

namespace vorlund {

/// The colours of one owner's land.
struct OwnerColours {
    QRgb Land;
    QRgb Edge;  ///< along a border with another owner
};

/// By player index, then nobody's. Derived from the colours of the markers, with lightness chosen so that any
/// two can be told apart with each kind of colour blindness; the map's generator and a test measure the
/// difference.
inline constexpr std::array<OwnerColours, MaxPlayers + 1> OwnersColours{{
    {0x991a24, 0xe4323a},
    {0xd97031, 0xffa055},
    {0xe8da65, 0xfff79a},
    {0x1e6d6e, 0x4fb9b0},
    {0x4a3691, 0x8c74ea},
    {0xa19e8c, 0xa19e8c},
}};

}  // namespace vorlund
