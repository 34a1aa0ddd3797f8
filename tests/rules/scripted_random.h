// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "state/random.h"

namespace vorlund {

/// A scripted generator: with "2/5 0/12" a die of 5 faces rolls 2, then one of 12 rolls 0. The test fails if
/// another die is rolled, and if a roll is missing or left over.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(const std::string& script) : script_(script) {}
    ~ScriptedRandom() override {
        std::string left;
        EXPECT_FALSE(script_ >> left) << "not rolled: " << left;
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
