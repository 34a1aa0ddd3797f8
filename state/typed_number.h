// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vorlund {

/// Reads what a player typed into a field as a decimal number: optional blanks around it, an optional sign,
/// digits with an optional point (".5" and "5." count) and an optional exponent. The locale never matters.
/// Nothing for any other text (empty, letters, hexadecimal, "inf", thousands separators) and for a number
/// that a double cannot hold.
std::optional<double> ReadNumber(std::string_view text);

/// As ReadNumber, but a field left empty counts as 0. A field of blanks is not empty, and is no number.
std::optional<double> ReadQuantity(std::string_view text);

/// The nearest whole number, halves going to the even neighbour (2.5 gives 2, 3.5 gives 4); nothing when
/// that does not fit 16 bits.
std::optional<std::int16_t> RoundToInt16(double value);

/// The largest whole number not above `value` (2.9 gives 2, -0.5 gives -1); nothing when that does not fit
/// 16 bits.
std::optional<std::int16_t> CutToInt16(double value);

/// How a number with a fraction names a territory. The rules differ in what they round, halves to the even
/// neighbour, and so in which numbers around 1 and 42 still count.
enum class TerritoryRounding {
    IndexInRange,  ///< 1 to 42 as typed, then the index: 42.4 is none (buying, selling, strike, selection)
    Index,         ///< the index alone: .5 is territory 1, 42.4 is territory 42 (transport, attack)
    Number         ///< the number: .6 is territory 1, 42.5 is territory 42, 1.5 is 2 (construction)
};

/// The index of the territory whose number a player has typed; nothing when the text is no number or names
/// none of the 42.
std::optional<int> ReadTerritory(std::string_view text, TerritoryRounding rounding);

}  // namespace vorlund
