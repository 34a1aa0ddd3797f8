// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

// Names of saved games in UTF-8, and the texts of the save and load screens that contain them.

/// Why no game can be saved under `typedName`, as a text for the player: it is empty, contains one of
/// \ / : * ? " < > | or a control character, is not valid UTF-8, or belongs to a device of Windows, where
/// such a game could not be loaded. Nothing when it can be used, as a name of spaces can.
std::optional<std::string> WhyNoGameName(std::string_view typedName);

/// The file of the game `typedName`: trimmed, in lower case, with ".vrs" appended.
std::string FileNameOf(std::string_view typedName);

/// True for the files that the load screen lists: "*.vrs", case-sensitive; ".vrs" alone matches.
bool IsSavedGameFile(std::string_view file);

inline constexpr const char* OverwriteQuestion =
    "Saved game already exists...\rWould you like to overwrite this file?";
inline constexpr const char* NotSavedText = "Game not saved...\rChoose a different name and try again.";

/// "Game 'mygame.vrs' properly saved."
std::string SavedText(std::string_view file);

/// "Game 'mygame.vrs' saved, but a power cut now could still lose it."
std::string DoubtfullySavedText(std::string_view file);

/// "Are you sure you want to delete the game mygame.vrs?"
std::string DeleteQuestion(std::string_view file);

}  // namespace vorlund
