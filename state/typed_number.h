// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vorlund {

/// Reads the decimal number that a player has typed: optional spaces around it, an optional sign, digits with
/// an optional point (".5" and "5." are numbers) and an optional exponent, whatever the locale. Nothing for
/// any other text (empty, letters, hexadecimal, "inf", thousands separators) and for a number out of a
/// double's range.
std::optional<double> ReadNumber(std::string_view text);

/// As ReadNumber, but an empty text counts as 0. A text of spaces is neither empty nor a number.
std::optional<double> ReadQuantity(std::string_view text);

/// The nearest whole number, halves going to the even neighbour (2.5 gives 2, 3.5 gives 4); nothing when
/// that does not fit 16 bits.
std::optional<std::int16_t> RoundToInt16(double value);

/// The largest whole number not above `value` (2.9 gives 2, -0.5 gives -1); nothing when that does not fit
/// 16 bits.
std::optional<std::int16_t> CutToInt16(double value);

/// How a typed number with a fraction is rounded to a territory, halves to even. The orders differ in it, and
/// so in which numbers just below 1 and just above 42 they accept.
enum class TerritoryRounding {
    IndexInRange,  ///< 1 to 42 as typed, then the index: 42.4 is none (buying, selling, strike, selection)
    Index,         ///< the index alone: .5 is territory 1, 42.4 is territory 42 (transport, attack)
    Number         ///< the number: .6 is territory 1, 42.5 is territory 42, 1.5 is 2 (construction)
};

/// The index of the territory whose number a player has typed; nothing when the text is no number or the
/// number is out of range.
std::optional<int> ReadTerritory(std::string_view text, TerritoryRounding rounding);

}  // namespace vorlund
