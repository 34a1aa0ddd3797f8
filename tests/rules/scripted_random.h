#pragma once

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "state/random.h"

namespace vorlund {

/// The u in the middle of those that make a draw over `n` give `result`.
inline float For(int result, int n) {
    return (static_cast<float>(result) + 0.5F) / static_cast<float>(n);
}

/// Chance from a written-out list. The test fails when a value is missing or left over.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(std::vector<float> values) : values_(std::move(values)) {}
    ~ScriptedRandom() override {
        EXPECT_EQ(next_, values_.size()) << "values asked for, and values in the script";
    }
    ScriptedRandom(const ScriptedRandom&) = delete;
    ScriptedRandom& operator=(const ScriptedRandom&) = delete;

    int Reseedings = 0;

    float Uniform() override {
        const std::size_t index = next_++;
        return index < values_.size() ? values_[index] : 0.0F;
    }
    void Reseed() override { ++Reseedings; }

private:
    std::vector<float> values_;
    std::size_t next_ = 0;
};

}  // namespace vorlund
