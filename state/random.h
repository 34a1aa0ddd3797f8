// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

namespace vorlund {

/// The game's chance. Rules take it as an argument, so that a script of rolls can stand in.
class Random {
public:
    virtual ~Random() = default;

    /// One throw of a die with `faces` >= 0 faces: 0 to `faces` - 1, each as likely; 0 without a face.
    virtual int Draw(int faces) = 0;

    /// Starts a new sequence from the clock.
    virtual void Reseed() = 0;
};

/// The generator of the running game. Two reseedings within one tick of the clock still give different
/// sequences, for a counter goes into the seed as well.
class ClockRandom : public Random {
public:
    ClockRandom() { SeedFromClock(); }

    /// A fixed first sequence, for programs that must be able to play a game again.
    explicit ClockRandom(std::uint32_t seed) : engine_(seed) {}

    /// The largest whole number not above u * `faces` for the next uniform u, 0 <= u < 1, in single
    /// precision.
    int Draw(int faces) override;
    void Reseed() override { SeedFromClock(); }

private:
    void SeedFromClock();

    std::mt19937 engine_;
    std::uint32_t reseedings_ = 0;
};

}  // namespace vorlund
