#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "state/random.h"

namespace vorlund {

/// Chance from a script: "2/5 0/12" makes a draw over 5 give 2, then one over 12 give 0. The test fails when
/// a roll is missing or left over.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(const std::string& script) : script_(script) {}
    ~ScriptedRandom() override {
        std::string left;
        EXPECT_FALSE(script_ >> left) << "not asked for: " << left;
    }

    int Reseedings = 0;

    float Uniform() override {
        float result = 0;
        float faces = 1;
        char slash = 0;
        EXPECT_TRUE(script_ >> result >> slash >> faces) << "a roll is missing";
        return (result + 0.5F) / faces;
    }
    void Reseed() override { ++Reseedings; }

private:
    std::stringstream script_;
};

}  // namespace vorlund
