// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

// What is done to texts that players type or files hold. The locale never matters.

/// `text` without the blanks around it. Tabs and line ends are no blanks.
std::string_view Trimmed(std::string_view text);

/// `utf8` with its Latin, Greek and Cyrillic capitals made small, as far as they have one counterpart each;
/// all other characters stay, and so does a text that is not UTF-8.
std::string LowerCase(std::string_view utf8);

/// True for the control characters of ASCII, whatever the code page around them.
constexpr bool IsAsciiControl(char32_t c) {
    return c < 0x20 || c == 0x7F;
}

/// True for the control characters of Unicode: those of ASCII, and U+0080 to U+009F.
constexpr bool IsControl(char32_t c) {
    return IsAsciiControl(c) || (c >= 0x80 && c < 0xA0);
}

}  // namespace vorlund
