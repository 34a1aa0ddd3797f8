// SPDX-License-Identifier: MIT
#include "state/random.h"

#include <chrono>
#include <cmath>

namespace vorlund {

int ClockRandom::Draw(int faces) {
    // The 24 high bits are all that single precision holds without rounding up to 1.
    const float u = static_cast<float>(engine_() >> 8U) * 0x1p-24F;
    // In double precision, where u * faces cannot round up to faces.
    return static_cast<int>(std::floor(static_cast<double>(u) * faces));
}

void ClockRandom::SeedFromClock() {
    const auto now = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::seed_seq seed{static_cast<std::uint32_t>(now & 0xFFFFFFFFU), static_cast<std::uint32_t>(now >> 32U),
                       ++reseedings_};
    engine_.seed(seed);
}

}  // namespace vorlund
