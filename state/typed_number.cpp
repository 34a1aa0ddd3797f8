// SPDX-License-Identifier: MIT
#include "state/typed_number.h"

#include <charconv>
#include <cmath>

#include "state/game_state.h"
#include "state/int16.h"
#include "state/text.h"

namespace vorlund {
namespace {

std::optional<std::int16_t> WholeToInt16(double whole) {
    if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
          whole <= std::numeric_limits<std::int16_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(whole);
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
    text = Trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') {
            return std::nullopt;
        }
    }
    // from_chars also accepts "inf" and "nan".
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos) {
        return std::nullopt;
    }
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> ReadQuantity(std::string_view text) {
    return text.empty() ? 0.0 : ReadNumber(text);
}

std::optional<std::int16_t> RoundToInt16(double value) {
    // Not std::nearbyint, which depends on the rounding mode that any library in the process may have set.
    const double below = std::floor(value);
    const double fraction = value - below;
    const bool up = fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) != 0.0);
    return WholeToInt16(up ? below + 1 : below);
}

std::optional<std::int16_t> CutToInt16(double value) {
    return WholeToInt16(std::floor(value));
}

std::optional<int> ReadTerritory(std::string_view text, TerritoryRounding rounding) {
    const std::optional<double> number = ReadNumber(text);
    const bool inRange = number && *number >= 1 && *number <= NumTerritories;
    if (!number || (rounding == TerritoryRounding::IndexInRange && !inRange)) {
        return std::nullopt;
    }
    const bool roundsNumber = rounding == TerritoryRounding::Number;
    const auto rounded = RoundToInt16(roundsNumber ? *number : *number - 1);
    if (!rounded) {
        return std::nullopt;
    }
    const int index = roundsNumber ? *rounded - 1 : *rounded;
    return index >= 0 && index < NumTerritories ? std::optional(index) : std::nullopt;
}

}  // namespace vorlund
