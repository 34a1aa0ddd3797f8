// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "state/random.h"

namespace vorlund {

/// Chance from a script: "2/5 0/12" makes a die with 5 faces show 2, then one with 12 show 0. The test fails
/// when the rules throw another die, and when a roll is missing or left over.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(const std::string& script) : script_(script) {}
    ~ScriptedRandom() override {
        std::string left;
        EXPECT_FALSE(script_ >> left) << "not asked for: " << left;
    }

    int Reseedings = 0;

    int Draw(int faces) override {
        int result = 0;
        int scripted = 0;
        char slash = 0;
        EXPECT_TRUE(script_ >> result >> slash >> scripted) << "a roll is missing";
        EXPECT_EQ(faces, scripted) << "faces of the die";
        return result;
    }
    void Reseed() override { ++Reseedings; }

private:
    std::stringstream script_;
};

}  // namespace vorlund
