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

/// True when `number` names a territory, 1 to 42; fractions in between count.
bool IsTerritoryNumber(double number);

/// The index of the territory that `number` names: one less, rounded to a whole number with halves going to
/// the even neighbour. Nothing when that does not fit 16 bits; a number outside 1 to 42 gives an index
/// outside 0 to 41.
std::optional<std::int16_t> TerritoryIndex(double number);

}  // namespace vorlund
