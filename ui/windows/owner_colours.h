// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <array>

#include "state/game_state.h"

namespace vorlund {

/// How the land of one owner is coloured.
struct OwnerColours {
    QRgb Land;
    QRgb Edge;  ///< of the land along a border with another owner
};

/// The players' by their index, then nobody's. They come from the colours of the players' markers, light and
/// dark enough for any two of them to differ to every kind of eye; the map's generator and a test measure
/// that.
inline constexpr std::array<OwnerColours, MaxPlayers + 1> OwnersColours{{
    {0x991a24, 0xe4323a},
    {0xd97031, 0xffa055},
    {0xe8da65, 0xfff79a},
    {0x1e6d6e, 0x4fb9b0},
    {0x4a3691, 0x8c74ea},
    {0xa19e8c, 0xa19e8c},
}};

}  // namespace vorlund
