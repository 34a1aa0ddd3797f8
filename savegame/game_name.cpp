// SPDX-License-Identifier: MIT
#include "savegame/game_name.h"

#include <algorithm>
#include <regex>

#include "state/text.h"
#include "state/utf8.h"

namespace vorlund {
namespace {

constexpr std::string_view Extension = ".vrs";
constexpr std::u32string_view Forbidden = U"\\/:*?\"<>|";

/// True for a name that Windows keeps for a device, whatever follows behind a dot.
bool IsDevice(std::string_view typedName) {
    static const std::regex devices("(con|prn|aux|nul|(com|lpt)([1-9]|\u00B9|\u00B2|\u00B3)) *(\\..*)?");
    return std::regex_match(LowerCase(Trimmed(typedName)), devices);
}

}  // namespace

std::optional<std::string> WhyNoGameName(std::string_view typedName) {
    if (typedName.empty()) {
        return "Enter an identifiable game name to open at a later time.";
    }
    const auto characters = DecodeUtf8(typedName);
    const auto isUnusable = [](char32_t c) {
        return IsControl(c) || Forbidden.find(c) != std::u32string_view::npos;
    };
    if (!characters) {
        return "A character of the game name was cut in half.\rEnter the name again.";
    }
    if (std::any_of(characters->begin(), characters->end(), isUnusable)) {
        return "A game name cannot hold a control character or any of these:\r\\ / : * ? \" < > |";
    }
    if (IsDevice(typedName)) {
        return "On Windows that is the name of a device: the game could not be loaded there.\r"
               "Choose a different name and try again.";
    }
    return std::nullopt;
}

std::string FileNameOf(std::string_view typedName) {
    return LowerCase(Trimmed(typedName)) + std::string(Extension);
}

bool IsSavedGameFile(std::string_view file) {
    return file.ends_with(Extension);
}

std::string SavedText(std::string_view file) {
    return "Game '" + std::string(file) + "' properly saved.";
}

std::string DoubtfullySavedText(std::string_view file) {
    return "Game '" + std::string(file) + "' saved, but a power cut now could still lose it.";
}

std::string DeleteQuestion(std::string_view file) {
    return "Are you sure you want to delete the game " + std::string(file) + "?";
}

}  // namespace vorlund
