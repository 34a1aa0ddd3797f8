// SPDX-License-Identifier: MIT
#include "state/text.h"

#include <array>

#include "state/utf8.h"

namespace vorlund {
namespace {

/// The capitals First, First + Step, ... Last; each one's lower-case letter is `Distance` code points above
/// it.
struct Capitals {
    char32_t First;
    char32_t Last;
    char32_t Step;
    char32_t Distance;
};

constexpr std::array<Capitals, 13> AllCapitals{{
    {U'A', U'Z', 1, 0x20},
    {0x00C0, 0x00D6, 1, 0x20},  // Latin with diacritics; U+00D7 is the multiplication sign
    {0x00D8, 0x00DE, 1, 0x20},
    {0x0100, 0x012E, 2, 1},  // U+0130 and U+0131, dotted I and dotless i, are no pair
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

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view utf8) {
    auto characters = DecodeUtf8(utf8);
    if (!characters) {
        return std::string(utf8);
    }
    for (char32_t& c : *characters) {
        c = Lower(c);
    }
    return EncodeUtf8(*characters);
}

}  // namespace vorlund
