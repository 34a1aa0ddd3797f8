#include "state/typed_number.h"

#include <charconv>
#include <cmath>

#include "state/game_state.h"
#include "state/int16.h"

namespace vorlund {
namespace {

std::string_view WithoutBlanksAround(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<std::int16_t> WholeToInt16(double whole) {
    if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
          whole <= std::numeric_limits<std::int16_t>::max())) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(whole);
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
    text = WithoutBlanksAround(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') {
            return std::nullopt;
        }
    }
    // from_chars would also take "inf" and "nan", which are words here.
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
    // Not std::nearbyint: that would follow whatever rounding mode some library has set.
    const double below = std::floor(value);
    const double fraction = value - below;
    const bool up = fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) != 0.0);
    return WholeToInt16(up ? below + 1 : below);
}

std::optional<std::int16_t> CutToInt16(double value) {
    return WholeToInt16(std::floor(value));
}

bool IsTerritoryNumber(double number) {
    return number >= 1 && number <= NumTerritories;
}

std::optional<std::int16_t> TerritoryIndex(double number) {
    return RoundToInt16(number - 1);
}

}  // namespace vorlund
