// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "state/game_state.h"

namespace vorlund {

/// More of a file than this is never looked at. A five-player game takes under 5 KB.
inline constexpr std::size_t MaxSavedGameBytes = std::size_t{64} * 1024;

/// Longest player name, in characters.
inline constexpr int MaxNameLength = 12;

/// What is wrong with a file that is no saved game.
struct BadFile {
    int Line = 0;      ///< counted from 1
    std::string What;  ///< in the player's words, a sentence

    bool operator==(const BadFile&) const = default;
};

/// The bytes of a saved game: one value a line in Windows-1252, 255 + 58 x NumPlayers lines that end with
/// carriage return and line feed. Names must read back (NameReadsBack); one that cannot be written at all
/// comes out as "?".
std::string WriteGame(const GameState& game);

/// Reads what WriteGame wrote: `fresh`, which is the state as the title screen leaves it, with everything
/// over it that the file carries, and GameLoaded true. The whole file is examined first: every value's form
/// and range, that the records agree with each other, and that a living human has the turn (FirstFlaw).
/// Bare line feeds, a missing end of the last line and further lines after the last are accepted; bytes
/// beyond MaxSavedGameBytes are not looked at.
std::variant<GameState, BadFile> ReadGame(const GameState& fresh, std::string_view bytes);

/// True when a player of this name (UTF-8) can be saved and loaded with the name intact: 1 to 12 characters
/// of Windows-1252, no control character, no double quote at the start or in a name that must itself stand
/// between quotes because it begins with a blank or holds a comma.
bool NameReadsBack(std::string_view utf8Name);

}  // namespace vorlund
