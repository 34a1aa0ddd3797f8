// SPDX-License-Identifier: MIT
#pragma once

#include "state/random.h"

namespace vorlund {

/// Chance that plays the same game again for the same seed: reseeding does nothing.
class SeededRandom final : public ClockRandom {
public:
    explicit SeededRandom(std::uint32_t seed) : ClockRandom(seed) {}

    void Reseed() override {}
};

}  // namespace vorlund
