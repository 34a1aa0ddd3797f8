// SPDX-License-Identifier: MIT
#include "state/utf8.h"

#include <bit>

namespace vorlund {
namespace {

constexpr char32_t FirstSurrogate = 0xD800;
constexpr char32_t LastSurrogate = 0xDFFF;
constexpr char32_t LastCharacter = 0x10FFFF;

char32_t Byte(char c) {
    return static_cast<unsigned char>(c);
}

/// The lowest code point that needs `length` bytes. Encoding a lower one in so many is overlong.
char32_t SmallestOfLength(int length) {
    return length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
}

/// Decodes the sequence of two to four bytes at the front of `utf8` and removes it; nothing when it is
/// malformed.
std::optional<char32_t> TakeLongCharacter(std::string_view& utf8) {
    const int length = std::countl_one(static_cast<unsigned char>(utf8.front()));
    if (length < 2 || length > 4 || utf8.size() < static_cast<std::size_t>(length)) {
        return std::nullopt;
    }
    char32_t character = Byte(utf8.front()) & (0x7FU >> length);
    for (const char c : utf8.substr(1, static_cast<std::size_t>(length) - 1)) {
        if ((Byte(c) & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        character = character << 6U | (Byte(c) & 0x3FU);
    }
    utf8.remove_prefix(static_cast<std::size_t>(length));
    if (character < SmallestOfLength(length) || character > LastCharacter ||
        (character >= FirstSurrogate && character <= LastSurrogate)) {
        return std::nullopt;
    }
    return character;
}

void Append(std::string& utf8, char32_t leadBits, char32_t character, unsigned continuationBytes) {
    utf8 += static_cast<char>(leadBits | character >> (6U * continuationBytes));
    while (continuationBytes-- > 0) {
        utf8 += static_cast<char>(0x80U | (character >> (6U * continuationBytes) & 0x3FU));
    }
}

}  // namespace

std::optional<std::u32string> DecodeUtf8(std::string_view utf8) {
    std::u32string characters;
    while (!utf8.empty()) {
        if (Byte(utf8.front()) < 0x80) {
            characters += Byte(utf8.front());
            utf8.remove_prefix(1);
        } else if (const auto character = TakeLongCharacter(utf8)) {
            characters += *character;
        } else {
            return std::nullopt;
        }
    }
    return characters;
}

std::string EncodeUtf8(std::u32string_view characters) {
    std::string utf8;
    for (const char32_t c : characters) {
        if (c < 0x80) {
            Append(utf8, 0, c, 0);
        } else if (c < 0x800) {
            Append(utf8, 0xC0, c, 1);
        } else if (c < 0x10000) {
            Append(utf8, 0xE0, c, 2);
        } else {
            Append(utf8, 0xF0, c, 3);
        }
    }
    return utf8;
}

}  // namespace vorlund
