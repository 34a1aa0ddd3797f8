#include "tests/fuzz/read_number.h"

#include <cmath>
#include <cstdlib>
#include <optional>

#include "state/typed_number.h"

namespace vorlund {
namespace {

/// Walks the grammar of a typed number one character at a time.
class Grammar {
public:
    explicit Grammar(std::string_view text) : rest_(text) {}

    bool Matches() {
        while (Take(" ")) {
        }
        Take("+-");
        int digits = Digits();
        if (Take(".")) {
            digits += Digits();
        }
        if (digits == 0) {
            return false;
        }
        if (Take("eE")) {
            Take("+-");
            if (Digits() == 0) {
                return false;
            }
        }
        while (Take(" ")) {
        }
        return rest_.empty();
    }

private:
    bool Take(std::string_view anyOf) {
        const bool taken = !rest_.empty() && anyOf.find(rest_.front()) != std::string_view::npos;
        rest_.remove_prefix(taken ? 1 : 0);
        return taken;
    }
    int Digits() {
        int count = 0;
        while (Take("0123456789")) {
            ++count;
        }
        return count;
    }

    std::string_view rest_;
};

}  // namespace

std::string WrongWithNumber(std::string_view text) {
    const std::optional<double> read = ReadNumber(text);
    if (!Grammar(text).Matches()) {
        return read ? "a text that is no number was read as one" : "";
    }
    // The tests run in the "C" locale, where strtod reads the same digits.
    const double expected = std::strtod(std::string(text).c_str(), nullptr);
    if (!read) {
        // Out of range is a reason: too large, or so small that it is not a normal number.
        const bool unholdable = std::isinf(expected) || std::fpclassify(expected) != FP_NORMAL;
        return unholdable ? "" : "a number was not read";
    }
    return *read == expected ? "" : "a number was read as another one";
}

}  // namespace vorlund
