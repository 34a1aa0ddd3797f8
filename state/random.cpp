// SPDX-License-Identifier: MIT
#include "state/random.h"

#include <chrono>
#include <cmath>

namespace vorlund {

int ClockRandom::Draw(int faces) {
    // A float's significand has 24 bits; with more the value could be rounded up to 1.
    const float u = static_cast<float>(engine_() >> 8U) * 0x1p-24F;
    // The product is computed in double precision, where it cannot be rounded up to `faces`.
    return static_cast<int>(std::floor(static_cast<double>(u) * faces));
}

std::uint64_t ClockRandom::SystemTicks() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

void ClockRandom::SeedFromClock() {
    const std::uint64_t now = clock_();
    std::seed_seq seed{static_cast<std::uint32_t>(now & 0xFFFFFFFFU), static_cast<std::uint32_t>(now >> 32U),
                       ++reseedings_};
    engine_.seed(seed);
}

}  // namespace vorlund
