#pragma once

#include <cstdint>
#include <random>

#include "state/random.h"

namespace vorlund {

/// Chance that plays the same game again for the same seed: reseeding does nothing.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(std::uint32_t seed) : engine_(seed) {}

    float Uniform() override { return static_cast<float>(engine_() >> 8U) * 0x1p-24F; }
    void Reseed() override {}

private:
    std::mt19937 engine_;
};

}  // namespace vorlund
