// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlund {

// The name that the player gives to a saved game, UTF-8 throughout, and what the screens say about it.

/// Why no game can be saved under `typedName`, as a text for the player: nothing was typed, or it holds one
/// of \ / : * ? " < > |, a control character or no whole character. Nothing when it can. A name of blanks can
/// be used.
std::optional<std::string> WhyNoGameName(std::string_view typedName);

/// The file of the game `typedName`: without the blanks around it, in lower case, and with ".vrs" behind.
std::string FileNameOf(std::string_view typedName);

/// True for the files that the load screen lists: "*.vrs", case by case as written; ".vrs" alone counts.
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
