#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "state/random.h"

// The figures on the page docs/rules.md, which the manual page carries as well, are taken by playing. This is
// what the tests of the page share.

namespace vorlund {

constexpr int Anna = 0;
constexpr int Ben = 1;
constexpr int Alaska = 0;
constexpr int Vancouver = 1;  // value 6, no oil field; next to Alaska

using Facts = std::vector<std::string>;

inline std::string Str(int number) {
    return std::to_string(number);
}

/// Chance that always gives the same value.
class Constant final : public Random {
public:
    explicit Constant(float value) : value_(value) {}
    float Uniform() override { return value_; }
    void Reseed() override {}

private:
    float value_;
};

/// In how many of a hundred cases something happens that one draw decides, not rounded.
inline double Percent(const std::function<bool(Random&)>& happens) {
    constexpr int steps = 10080;
    int hits = 0;
    for (int k = 0; k < steps; ++k) {
        Constant random((static_cast<float>(k) + 0.5F) / steps);
        hits += happens(random) ? 1 : 0;
    }
    return 100.0 * hits / steps;
}

inline std::string OneIn(const std::function<bool(Random&)>& happens) {
    return "1 in " + Str(static_cast<int>(std::lround(100 / Percent(happens))));
}

// The smallest number for which something holds.
inline int Least(const std::function<bool(int)>& holds) {
    int number = 0;
    while (number < 1000 && !holds(number)) {
        ++number;
    }
    return number;
}

// The page as one line.
inline std::string Page() {
    std::ifstream file(VORLUND_SOURCE_DIR "/docs/rules.md");
    std::string text;
    for (std::string word; file >> word;) {
        text += word + " ";
    }
    return text;
}

inline void ExpectOnThePage(const Facts& facts) {
    const std::string page = Page();
    for (const std::string& fact : facts) {
        EXPECT_NE(page.find(fact), std::string::npos) << "the page does not say: " << fact;
    }
}

}  // namespace vorlund
