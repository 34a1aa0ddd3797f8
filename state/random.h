// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <utility>

namespace vorlund {

/// A source of random numbers. Rules take it as an argument, so that tests can pass a scripted sequence.
class Random {
public:
    virtual ~Random() = default;

    /// Rolls a die of `faces` >= 0 faces: 0 to `faces` - 1 with equal chance; always 0 if `faces` is 0.
    virtual int Draw(int faces) = 0;

    /// Starts a new sequence that depends on the clock.
    virtual void Reseed() = 0;
};

/// The generator of the running game. The seed contains a counter besides the time, so that two calls of
/// Reseed within one tick of the clock start different sequences.
class ClockRandom : public Random {
public:
    using Clock = std::function<std::uint64_t()>;

    /// Seeds from `clock`, whose unit does not matter.
    explicit ClockRandom(Clock clock = SystemTicks) : clock_(std::move(clock)) { SeedFromClock(); }

    /// Starts with a fixed sequence, for tests that must be repeatable.
    explicit ClockRandom(std::uint32_t seed) : clock_(SystemTicks), engine_(seed) {}

    /// floor(u * `faces`) for the next uniform single-precision value u, 0 <= u < 1.
    int Draw(int faces) override;
    void Reseed() override { SeedFromClock(); }

private:
    static std::uint64_t SystemTicks();
    void SeedFromClock();

    Clock clock_;
    std::mt19937 engine_;
    std::uint32_t reseedings_ = 0;
};

}  // namespace vorlund
