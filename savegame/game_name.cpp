#include "savegame/game_name.h"

#include <algorithm>
#include <array>

#include "savegame/utf8.h"

namespace vorlund {
namespace {

constexpr std::string_view Extension = ".vrs";
constexpr std::u32string_view Forbidden = U"\\/:*?\"<>|";

bool IsControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

/// Capitals First to Last, every Step-th character, whose small letters lie Distance further on.
struct Capitals {
    char32_t First;
    char32_t Last;
    char32_t Step;
    char32_t Distance;
};

constexpr std::array<Capitals, 13> AllCapitals{{
    {U'A', U'Z', 1, 0x20},
    {0x00C0, 0x00D6, 1, 0x20},  // Latin with marks; U+00D7 is a times sign
    {0x00D8, 0x00DE, 1, 0x20},
    {0x0100, 0x012E, 2, 1},  // U+0130 and U+0131 are the Turkish i's
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0179, 0x017D, 2, 1},
    {0x0388, 0x038A, 1, 0x25},  // Greek
    {0x0391, 0x03A1, 1, 0x20},
    {0x03A3, 0x03AB, 1, 0x20},
    {0x0400, 0x040F, 1, 0x50},  // Cyrillic
    {0x0410, 0x042F, 1, 0x20},
}};

char32_t Lower(char32_t c) {
    constexpr char32_t CapitalYDiaeresis = 0x0178;
    constexpr char32_t SmallYDiaeresis = 0x00FF;
    if (c == CapitalYDiaeresis) {
        return SmallYDiaeresis;
    }
    for (const Capitals& run : AllCapitals) {
        if (c >= run.First && c <= run.Last && (c - run.First) % run.Step == 0) {
            return c + run.Distance;
        }
    }
    return c;
}

}  // namespace

std::string LowerCase(std::string_view text) {
    auto characters = DecodeUtf8(text);
    if (!characters) {
        return std::string(text);
    }
    for (char32_t& c : *characters) {
        c = Lower(c);
    }
    return EncodeUtf8(*characters);
}

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
    return std::nullopt;
}

std::string FileNameOf(std::string_view typedName) {
    const auto first = typedName.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return std::string(Extension);
    }
    const auto last = typedName.find_last_not_of(' ');
    return LowerCase(typedName.substr(first, last - first + 1)) + std::string(Extension);
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
