// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vorlund {

// Functions on texts from the keyboard and from files. None of them depends on the locale.

/// `text` without leading and trailing spaces. Tabs and line ends are kept.
std::string_view Trimmed(std::string_view text);

/// `utf8` in lower case: Latin, Greek and Cyrillic capitals that map to a single letter are mapped,
/// everything else is kept. Text that is not valid UTF-8 is returned unchanged.
std::string LowerCase(std::string_view utf8);

/// True for the control characters of ASCII, which are the same in every code page.
constexpr bool IsAsciiControl(char32_t c) {
    return c < 0x20 || c == 0x7F;
}

/// True for the control characters of Unicode: those of ASCII, and U+0080 to U+009F.
constexpr bool IsControl(char32_t c) {
    return IsAsciiControl(c) || (c >= 0x80 && c < 0xA0);
}

}  // namespace vorlund
