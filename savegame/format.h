// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "state/game_state.h"

namespace vorlund {

/// Only so much of a file is read. A five-player game takes less than 5 KB.
inline constexpr std::size_t MaxSavedGameBytes = std::size_t{64} * 1024;

/// Longest player name, in characters.
inline constexpr int MaxNameLength = 12;

/// Why a file is no valid saved game.
struct BadFile {
    int Line = 0;      ///< the first bad line, counted from 1
    std::string What;  ///< a sentence for the player

    bool operator==(const BadFile&) const = default;
};

/// The bytes of a saved game: one value per line in Windows-1252, 255 + 58 x NumPlayers lines that end with
/// carriage return and line feed. A name must satisfy NameReadsBack; one that cannot be encoded is written as
/// "?".
std::string WriteGame(const GameState& game);

/// Reads the output of WriteGame: returns `fresh`, the state at the title screen, with all values of the file
/// and GameLoaded set. The file is checked completely: the form and range of every value, the invariants, and
/// that a living human has the turn (FirstFlaw). Accepts bare line feeds, a missing end of the last line and
/// additional lines; ignores bytes beyond MaxSavedGameBytes.
std::variant<GameState, BadFile> ReadGame(const GameState& fresh, std::string_view bytes);

/// True when a player's name (UTF-8) is the same after saving and loading: 1 to 12 characters of
/// Windows-1252, no control character, and no double quote at the start or, in a name that is written between
/// double quotes because it begins with a space or contains a comma, anywhere.
bool NameReadsBack(std::string_view utf8Name);

}  // namespace vorlund
