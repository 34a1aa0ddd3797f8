#include "state/random.h"

#include <chrono>
#include <cmath>

namespace vorlund {

int Random::Draw(int n) {
    // In double precision, where u * n cannot round up to n.
    return static_cast<int>(std::floor(static_cast<double>(Uniform()) * n));
}

float ClockRandom::Uniform() {
    // The 24 high bits, all that a float holds without rounding up to 1.
    return static_cast<float>(engine_() >> 8U) * 0x1p-24F;
}

void ClockRandom::Reseed() {
    const auto now = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    std::seed_seq seed{static_cast<std::uint32_t>(now & 0xFFFFFFFFU), static_cast<std::uint32_t>(now >> 32U),
                       ++reseedings_};
    engine_.seed(seed);
}

}  // namespace vorlund
