// SPDX-License-Identifier: MIT
#include "savegame/windows1252.h"

#include <algorithm>
#include <array>

#include "state/utf8.h"

namespace vorlund {
namespace {

constexpr char32_t FirstRemapped = 0x80;

/// The characters of bytes 0x80 to 0x9F. Every other byte is the character of the same value.
constexpr std::array<char32_t, 32> Remapped{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::optional<char> ByteOf(char32_t character) {
    const auto found = std::find(Remapped.begin(), Remapped.end(), character);
    if (found != Remapped.end()) {
        return static_cast<char>(FirstRemapped + static_cast<char32_t>(found - Remapped.begin()));
    }
    if (character < FirstRemapped || (character >= FirstRemapped + Remapped.size() && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> ToWindows1252(std::string_view utf8) {
    const auto characters = DecodeUtf8(utf8);
    if (!characters) {
        return std::nullopt;
    }
    std::string bytes;
    for (const char32_t character : *characters) {
        const auto byte = ByteOf(character);
        if (!byte) {
            return std::nullopt;
        }
        bytes += *byte;
    }
    return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
    std::u32string characters;
    for (const char c : bytes) {
        const char32_t byte = static_cast<unsigned char>(c);
        const bool isRemapped = byte >= FirstRemapped && byte < FirstRemapped + Remapped.size();
        characters += isRemapped ? Remapped[byte - FirstRemapped] : byte;
    }
    return EncodeUtf8(characters);
}

}  // namespace vorlund
