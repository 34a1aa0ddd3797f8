// SPDX-License-Identifier: MIT
#pragma once

#include "state/random.h"

namespace vorlund {

/// A repeatable generator: Reseed does nothing.
class SeededRandom final : public ClockRandom {
public:
    explicit SeededRandom(std::uint32_t seed) : ClockRandom(seed) {}

    void Reseed() override {}
};

}  // namespace vorlund
